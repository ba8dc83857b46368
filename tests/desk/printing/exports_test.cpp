// SPDX-License-Identifier: MIT
#include "printing/exports.h"

#include <gmock/gmock.h>

#include "frame/state.h"
#include "paper_program.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class HtmlFile : public PaperProgram {
protected:
    Lines Page() {
        Choose(frmMain->mnuFilerDanHtml);
        return Paper("vatro2026.htm");
    }
};

TEST_F(HtmlFile, RunsFrom80MetresUpAndThenSumsUp) {
    Log("80mSSB", {Contact({.mode = "SSB"})});
    const Lines page = Page();
    ASSERT_EQ(page.size(), 5U + 10 * 6 + 3 + 24 + 2);
    EXPECT_EQ(page[0], "<html>");
    EXPECT_EQ(page[5], "<a name=\"80mCW\"></a><a href=\"#top\">Top</a>");
    EXPECT_EQ(page[10], "</pre>");
    EXPECT_EQ(page[11], "<a name=\"80mSSB\"></a><a href=\"#top\">Top</a>");
    EXPECT_EQ(page[16], "       05-09-26 13:05 DL1AA           599-0012 579-0034  3            OZ1AB      SSB  ");
    EXPECT_EQ(page[19], "</pre>");
    EXPECT_EQ(page[68], "<a name=\"Summary\"></a><a href=\"#top\">Top</a>");
    EXPECT_EQ(page.back(), "</html>");
    EXPECT_THAT(Progress(), ElementsAre("Dan html", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(HtmlFile, NamesTheStationWithItsBlanks) {
    desk().gsMyCall = "OZ1ABC/P";
    const Lines page = Page();
    EXPECT_EQ(page[1], "<head><title>Fieldday log for OZ1ABC/P 2026</title></head>");
    EXPECT_EQ(page[5 + 60 + 4], "<tr align=\"center\"><td colspan=2>Test, formand" + std::string(73 - 13, ' '));
}

TEST_F(HtmlFile, IsNamedAfterTheYearOfTheClock) {
    clock.now.year = 2031;
    Choose(frmMain->mnuFilerDanHtml);
    EXPECT_TRUE(HasPaper("vatro2031.htm"));
}

TEST_F(HtmlFile, StopsTheProgramIfItCannotBeCreated) {
    files.FailFrom("open", 1, Failure::PathNotFound);
    Choose(frmMain->mnuFilerDanHtml);
    EXPECT_EQ(dialogs.failures, std::vector<int>{76});
}

TEST_F(HtmlFile, StopsTheProgramIfItCannotBeWritten) {
    files.FailFrom("write", 20, Failure::DiskFull);
    Choose(frmMain->mnuFilerDanHtml);
    EXPECT_EQ(dialogs.failures, std::vector<int>{61});
}

const std::string kHeader = "Genereret af QQ9ZZZ's Logprogram (RT60)<EOH>\r\n\r\n";

class AdifFile : public PaperProgram {
protected:
    std::string Export() {
        Choose(frmMain->mnuFilerEksportAdif);
        return Bytes("vatro2026.adi");
    }
};

TEST_F(AdifFile, WithoutALogIsTheHeaderAlone) {
    EXPECT_EQ(Export(), kHeader);
    EXPECT_THAT(Progress(), ElementsAre("Dan ADIF", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(AdifFile, KeepsTheDateOfTheLineAndNamesTheFileAfterTheYearOfTheClock) {
    Log("80mCW", {Contact({.time = "00.07", .date = "07-09-02"})});
    clock.now.year = 2031;
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_THAT(Bytes("vatro2031.adi"), HasSubstr("<QSO_DATE:8:d>20020907\r\n<TIME_ON:4>0007\r\n"));
}

TEST_F(AdifFile, RunsFrom80MetresUp) {
    Log("80mSSB", {Contact({.call = "DL1AA"})});
    Log("80mCW", {Contact({.call = "DL2AA"}), Contact({.call = "DL3AA"})});
    Log("10mCW", {Contact({.call = "DL4AA"})});
    const std::string file = Export();
    EXPECT_LT(file.find("DL2AA"), file.find("DL3AA"));
    EXPECT_LT(file.find("DL3AA"), file.find("DL1AA"));
    EXPECT_LT(file.find("DL1AA"), file.find("DL4AA"));
}

TEST_F(AdifFile, TellsThatTheLogDirectoryHasGoneAndGoesOn) {
    files.FailFrom("open", 1, Failure::PathNotFound);
    dialogs.Expect(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen.");
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(AdifFile, EndsInSilenceAtAnyOtherFailure) {
    files.FailFrom("open", 1, Failure::PathFileAccess);
    Choose(frmMain->mnuFilerEksportAdif);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(AdifFile, ThatCannotBeWrittenLeavesItsFileOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("write", 2, Failure::DiskFull);
    EXPECT_EQ(Export(), kHeader);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_TRUE(IsFree(1));
    EXPECT_FALSE(IsFree(2));
}

}  // namespace
}  // namespace vatro
