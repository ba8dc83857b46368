// SPDX-License-Identifier: MIT
#include "papers/adif.h"

#include <gmock/gmock.h>

#include "paper_lines.h"

namespace vatro {
namespace {

using ::testing::HasSubstr;

class Adif : public Papers {
protected:
    /// The file of one log as it is on the disk.
    static std::string Export(const Lines& log, const LogId& id = k80mCW) {
        WrittenLines file;
        WriteAdifHead(file);
        ListedLines lines(log);
        DanAdifKrop(lines, file, id);
        std::string bytes;
        for (const std::string& line : file.lines) bytes += line + "\r\n";
        return bytes;
    }
};

const std::string kHeader = "Genereret af QQ9ZZZ's Logprogram (RT60)<EOH>\r\n\r\n";

TEST_F(Adif, WritesTheWorkedRecord) {
    EXPECT_EQ(Export({"13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"}, {"10m", "CW"}),
              kHeader +
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
    const std::string file =
        Export({Contact({.call = "DL1AA", .points = 3, .operatorCall = "OZ1ABCD", .mode = "SSB", .sent = "59", .received = "57"})});
    EXPECT_THAT(file, HasSubstr("<BAND:3>80M\r\n<MODE:3>SSB\r\n<CALL:5>DL1AA\r\n<RST_SENT:2>59\r\n"));
    EXPECT_THAT(file, HasSubstr("<RST_RCVD:2>57\r\n<SRL_RCVD:4>0034\r\n<POINTS:1>3\r\n<MULT:0>\r\n<OPERATOR:7>OZ1ABCD\r\n"));
}

TEST_F(Adif, CountsTenCharactersAndMoreWithTwoFigures) {
    EXPECT_THAT(AdifRecord(Contact({.call = "DL1ABCD/P"}), "80m"), HasSubstr("<CALL:9>DL1ABCD/P\r\n"));
    EXPECT_THAT(AdifRecord(Contact({.call = "OH0/DL1ABC"}), "80m"), HasSubstr("<CALL:10>OH0/DL1ABC\r\n"));
    EXPECT_THAT(AdifRecord(Contact({.call = "OH0/DL1ABC/QRPP"}), "80m"), HasSubstr("<CALL:15>OH0/DL1ABC/QRPP\r\n"));
}

TEST_F(Adif, TakesTheModeFromTheLine) {
    EXPECT_THAT(Export({Contact({.mode = "PSK31"})}), HasSubstr("<BAND:3>80M\r\n<MODE:5>PSK31\r\n"));
}

TEST_F(Adif, LeavesNotesOutAndDuplicatesIn) {
    const std::string file = Export({"NOTE: <EOR>", Contact({.points = 0, .mult = "-DUPE-"})});
    EXPECT_THAT(file, HasSubstr(kHeader + "<QSO_DATE:8:d>20260905\r\n"));
    EXPECT_THAT(file, HasSubstr("<POINTS:1>0\r\n<MULT:6>-DUPE-\r\n"));
}

TEST_F(Adif, LeavesOutADateAndATimeThatAreNone) {
    EXPECT_EQ(AdifRecord(Contact({.time = "25:00"}), "80m").substr(0, 35), "<QSO_DATE:8:d>20260905\r\n<BAND:3>80M");
    EXPECT_EQ(AdifRecord(Contact({.date = "31-02-26"}), "80m").substr(0, 28), "<TIME_ON:4>1305\r\n<BAND:3>80M");
    // A line of earlier years ends before mode and date.
    EXPECT_EQ(AdifRecord("13:05 DL1AA           599-0012", "80m"),
              "<TIME_ON:4>1305\r\n<BAND:3>80M\r\n<MODE:0>\r\n<CALL:5>DL1AA\r\n<RST_SENT:3>599\r\n<SRL_SENT:4>0012\r\n<RST_RCVD:0>\r\n"
              "<SRL_RCVD:0>\r\n<POINTS:0>\r\n<MULT:0>\r\n<OPERATOR:0>\r\n<EOR>\r\n");
}

}  // namespace
}  // namespace vatro
