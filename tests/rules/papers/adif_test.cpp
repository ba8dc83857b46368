// SPDX-License-Identifier: MIT
#include "papers/adif.h"

#include <gmock/gmock.h>

#include "paper_program.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string kHeader = "Genereret af QQ9ZZZ's Logprogram (RT60)<EOH>\r\n\r\n";

std::string RecordOf(std::string_view line, std::string_view band) {
    std::string record;
    TilføjPost(record, line, band);
    return record;
}

class Adif : public PaperProgram {
protected:
    std::string Export() {
        Choose(frmMain->mnuFilerEksportAdif);
        return Bytes("vatro2026.adi");
    }
};

TEST_F(Adif, WithoutALogIsTheHeaderAlone) {
    EXPECT_EQ(Export(), kHeader);
    EXPECT_THAT(Progress(), ElementsAre("Dan ADIF", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(Adif, WritesTheWorkedRecord) {
    Log("10mCW", {"13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"});
    EXPECT_EQ(Export(), kHeader +
                            "<QSO_DATE:8:d>20260905\r\n"
                            "<TIME_ON:4>1305\r\n"
                            "<BAND:3>10M\r\n"
                            "<MODE:2>CW\r\n"
                            "<CALL:8>OZ9XYZ/P\r\n"
                            "<RST_SENT:3>599\r\n"
                            "<SRL_SENT:4>0012\r\n"
                            "<RST_RCVD:3>579\r\n"
                            "<SRL_RCVD:4>0034\r\n"
                            "<POINTS:2>10\r\n"
                            "<MULT:1>G\r\n"
                            "<OPERATOR:5>OZ1AB\r\n"
                            "<EOR>\r\n"
                            "\r\n"
                            "\r\n");
}

TEST_F(Adif, TrimsValuesAndCountsTheirLength) {
    Log("80mSSB", {Contact({.call = "DL1AA", .points = 3, .op = "OZ1ABCD", .mode = "SSB", .sent = "59", .received = "57"})});
    const std::string file = Export();
    EXPECT_THAT(file, HasSubstr("<BAND:3>80M\r\n<MODE:3>SSB\r\n<CALL:5>DL1AA\r\n<RST_SENT:2>59\r\n"));
    EXPECT_THAT(file, HasSubstr("<RST_RCVD:2>57\r\n<SRL_RCVD:4>0034\r\n<POINTS:1>3\r\n<MULT:0>\r\n<OPERATOR:7>OZ1ABCD\r\n"));
}

TEST_F(Adif, CountsTenCharactersAndMoreWithTwoFigures) {
    EXPECT_THAT(RecordOf(Contact({.call = "DL1ABCD/P"}), "80m"), HasSubstr("<CALL:9>DL1ABCD/P\r\n"));
    EXPECT_THAT(RecordOf(Contact({.call = "OH0/DL1ABC"}), "80m"), HasSubstr("<CALL:10>OH0/DL1ABC\r\n"));
    EXPECT_THAT(RecordOf(Contact({.call = "OH0/DL1ABC/QRPP"}), "80m"), HasSubstr("<CALL:15>OH0/DL1ABC/QRPP\r\n"));
}

TEST_F(Adif, TakesTheModeFromTheLine) {
    Log("80mCW", {Contact({.mode = "PSK31"})});
    EXPECT_THAT(Export(), HasSubstr("<BAND:3>80M\r\n<MODE:5>PSK31\r\n"));
}

TEST_F(Adif, LeavesNotesOutAndDuplicatesIn) {
    Log("80mCW", {"NOTE: <EOR>", Contact({.points = 0, .mult = "-DUPE-"})});
    const std::string file = Export();
    EXPECT_THAT(file, HasSubstr(kHeader + "<QSO_DATE:8:d>20260905\r\n"));
    EXPECT_THAT(file, HasSubstr("<POINTS:1>0\r\n<MULT:6>-DUPE-\r\n"));
}

TEST_F(Adif, KeepsTheDateOfTheLineAndNamesTheFileAfterTheYearOfTheClock) {
    Log("80mCW", {Contact({.time = "00.07", .date = "07-09-02"})});
    clock.now.year = 2031;
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_THAT(Bytes("vatro2031.adi"), HasSubstr("<QSO_DATE:8:d>20020907\r\n<TIME_ON:4>0007\r\n"));
}

TEST_F(Adif, RunsFrom80MetresUp) {
    Log("80mSSB", {Contact({.call = "DL1AA"})});
    Log("80mCW", {Contact({.call = "DL2AA"}), Contact({.call = "DL3AA"})});
    Log("10mCW", {Contact({.call = "DL4AA"})});
    const std::string file = Export();
    EXPECT_LT(file.find("DL2AA"), file.find("DL3AA"));
    EXPECT_LT(file.find("DL3AA"), file.find("DL1AA"));
    EXPECT_LT(file.find("DL1AA"), file.find("DL4AA"));
}

TEST_F(Adif, LeavesOutADateAndATimeThatAreNone) {
    EXPECT_EQ(RecordOf(Contact({.time = "25:00"}), "80m").substr(0, 35), "<QSO_DATE:8:d>20260905\r\n<BAND:3>80M");
    EXPECT_EQ(RecordOf(Contact({.date = "31-02-26"}), "80m").substr(0, 28), "<TIME_ON:4>1305\r\n<BAND:3>80M");
    // A line of earlier years ends before mode and date.
    EXPECT_EQ(RecordOf("13:05 DL1AA           599-0012", "80m"),
              "<TIME_ON:4>1305\r\n<BAND:3>80M\r\n<MODE:0>\r\n<CALL:5>DL1AA\r\n<RST_SENT:3>599\r\n<SRL_SENT:4>0012\r\n<RST_RCVD:0>\r\n"
              "<SRL_RCVD:0>\r\n<POINTS:0>\r\n<MULT:0>\r\n<OPERATOR:0>\r\n<EOR>\r\n");
}

TEST_F(Adif, TellsThatTheLogDirectoryHasGoneAndGoesOn) {
    files.FailFrom("open", 1, Failure::PathNotFound);
    dialogs.Expect(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen.");
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(Adif, EndsInSilenceAtAnyOtherFailure) {
    files.FailFrom("open", 1, Failure::PathFileAccess);
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(Adif, ThatCannotBeWrittenLeavesItsFileOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("write", 2, Failure::DiskFull);
    EXPECT_EQ(Export(), kHeader);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_TRUE(IsFree(1));
    EXPECT_FALSE(IsFree(2));
}

}  // namespace
}  // namespace vatro
