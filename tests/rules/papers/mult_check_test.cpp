// SPDX-License-Identifier: MIT
#include "papers/mult_check.h"

#include "columns.h"
#include "paper_lines.h"
#include "papers/log_sheets.h"

namespace vatro {
namespace {

const Lines kMultHead{"       Fieldday log for OZ1AB/P 2026, (Vatro version 1.2.3)", "       Multiplier Checksheet", " "};
const std::string kModes = "       CW     SSB    CW     SSB    CW     SSB    CW     SSB    CW     SSB    ";
const Lines kMultTop = kMultHead + Lines{" ", "       10m    10m    15m    15m    20m    20m    40m    40m    80m    80m    ", kModes, " "};
const Lines kLaterTop = kMultHead + Lines{" ", "       10m           15m           20m           40m           80m           ", kModes};

Lines LogOf(const std::vector<const char*>& mults) {
    Lines log;
    for (const char* mult : mults) log.push_back(Contact({.mult = mult}));
    return log;
}

/// M000, M001 and so on.
Lines Numbered(int n) {
    Lines log;
    for (int i = 0; i < n; ++i) {
        std::string mult = std::to_string(1000 + i);
        mult.front() = 'M';
        log.push_back(Contact({.mult = mult.c_str()}));
    }
    return log;
}

class MultCheck : public Papers {
protected:
    Lines Sheet() {
        WrittenLines sheet;
        DanHoved(sheet, context, kMultiplierHeading.band, kMultiplierHeading.mode);
        DanMult(sheet, context, CollectAllMultipliers(logs));
        EXPECT_FALSE(logs.open);
        return sheet.lines;
    }
};

TEST_F(MultCheck, WithoutALogHasItsHeadingsAlone) {
    EXPECT_EQ(Sheet(), kMultTop);
}

TEST_F(MultCheck, ShowsTheWorkedTable) {
    Log("10mCW", LogOf({"F", "DL"}));
    Log("10mSSB", LogOf({"DL"}));
    Log("15mCW", LogOf({"DL", "G"}));
    Log("20mCW", LogOf({"OH", "G"}));
    Log("20mSSB", LogOf({"F", "G"}));
    Log("40mCW", LogOf({"DL", "F"}));
    Log("40mSSB", LogOf({"F", "DL"}));
    Log("80mCW", LogOf({"F", "DL"}));
    Log("80mSSB", LogOf({"DL"}));
    const Lines rows{"       DL     DL     DL            G      F      DL     DL     DL     DL     ",
                     "       F             G             OH     G      F      F      F             "};
    EXPECT_EQ(Sheet(), kMultTop + rows);
}

TEST_F(MultCheck, TakesContactsWithAMultiplierOnly) {
    Log("80mSSB", {Contact({.mult = "DL"}), Contact({}), Contact({.points = 0, .mult = "-DUPE-"}), NoteWith("", "G")});
    const Lines rows{std::string(70, ' ') + "DL     "};
    EXPECT_EQ(Sheet(), kMultTop + rows);
}

TEST_F(MultCheck, SortsByCharacter) {
    Log("10mCW", LogOf({"a", "9A", "PA", "A", "3A", "PA0", "PA"}));
    const Lines sheet = Sheet();
    ASSERT_EQ(sheet.size(), kMultTop.size() + 7);
    std::string column;
    for (std::size_t i = kMultTop.size(); i < sheet.size(); ++i) column += sheet[i].substr(7, 4);
    EXPECT_EQ(column, "3A  9A  A   PA  PA  PA0 a   ");
}

TEST_F(MultCheck, CutsAMultiplierAtSevenCharacters) {
    Log("10mCW", LogOf({"ABCDEFGZZ", "ABCDEFGAA"}));
    Log("10mSSB", LogOf({"X"}));
    const Lines rows{"       ABCDEFGX      " + std::string(56, ' '), "       ABCDEFG" + std::string(63, ' ')};
    EXPECT_EQ(Sheet(), kMultTop + rows);
}

TEST_F(MultCheck, LetsAShortLineMoveTheColumnsToItsRight) {
    Log("10mCW", {Contact({.mult = "DL"}), ""});
    Log("10mSSB", LogOf({"G", "F"}));
    // The empty cell sorts first and takes no column width.
    const Lines rows{"       F      " + std::string(56, ' '), "       DL     G      " + std::string(56, ' ')};
    EXPECT_EQ(Sheet(), kMultTop + rows);
}

TEST_F(MultCheck, WritesARowOfEmptyCellsAlone) {
    for (const LogId& log : kTenLogs) Log(std::string(log.band) + std::string(log.mode), {"x"});
    EXPECT_EQ(Sheet(), kMultTop + Lines{"       "});
}

TEST_F(MultCheck, BeginsTheSecondPageBehindFiftyOneRowsWithNothingBelow) {
    Log("80mSSB", Numbered(51));
    const Lines sheet = Sheet();
    ASSERT_EQ(sheet.size(), kMultTop.size() + 51 + kLaterTop.size());
    EXPECT_EQ(sheet[kMultTop.size() + 50], std::string(70, ' ') + "M050   ");
    EXPECT_EQ(Lines(sheet.end() - static_cast<std::ptrdiff_t>(kLaterTop.size()), sheet.end()), kLaterTop);
}

TEST_F(MultCheck, OfFiftyRowsHasOnePage) {
    Log("80mSSB", Numbered(50));
    EXPECT_EQ(Sheet().size(), kMultTop.size() + 50);
}

TEST_F(MultCheck, HoldsOneHundredRows) {
    Log("10mCW", Numbered(100));
    const Lines sheet = Sheet();
    ASSERT_EQ(sheet.size(), kMultTop.size() + 51 + kLaterTop.size() + 49);
    EXPECT_EQ(sheet[kMultTop.size() + 51 + 1], "       Multiplier Checksheet");
    EXPECT_EQ(sheet.back(), "       M099   " + std::string(63, ' '));
    EXPECT_EQ(Trim(sheet[kMultTop.size() + 51 + kLaterTop.size()]), "M051");
}

TEST_F(MultCheck, HasNoPlaceForAHundredAndOne) {
    Log("15mCW", Numbered(101));
    Log("80mSSB", LogOf({"DL"}));
    const MultColumn full = SamlMult(logs, {"15m", "CW"});
    EXPECT_EQ(full.count, 101U);
    EXPECT_EQ(full.cells[100], "M099   ");
    // The log stays open, so the later ones cannot be opened.
    EXPECT_TRUE(logs.open);
    EXPECT_EQ(SamlMult(logs, {"80m", "SSB"}).count, 0U);
    Multipliers all;
    all.count[2] = full.count;
    EXPECT_THROW(SortMult(all), RunTimeError);
}

TEST_F(MultCheck, KeepsWhatWasCollectedBeforeAFailureAndLeavesTheLogOpen) {
    Log("15mCW", Numbered(3));
    logs.good = 2;
    EXPECT_EQ(SamlMult(logs, {"15m", "CW"}).count, 2U);
    EXPECT_TRUE(logs.open);
}

}  // namespace
}  // namespace vatro
