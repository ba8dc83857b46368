// SPDX-License-Identifier: MIT
#include "papers/log_sheets.h"

#include "paper_lines.h"
#include "papers/layout.h"

namespace vatro {
namespace {

const std::string kSheetHead = "       Fieldday log for OZ1AB/P 2026, (Vatro version 1.2.3)";
const std::string kSheetColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";
// Points end at 57, multipliers at 62, the score at 75.
const std::string kPageNought = "       Ialt denne side:                                  0    0            0";
const std::string kLogNought = "       Ialt akkumuleret:                                 0    0            0";
const Lines kSheetTop{kSheetHead, "       80m CW", " ", kSheetColumns};
const std::string kSheetRow = "       05-09-26 13:05 DL1AA           599-0012 579-0034  3            OZ1AB      CW   ";

class LogSheets : public Papers {
protected:
    Lines SheetOf(const Lines& log) const {
        WrittenLines sheet;
        ListedLines lines(log);
        DanHoved(sheet, context, "80m", "CW");
        DanKrop(lines, sheet, context, k80mCW);
        return sheet.lines;
    }
};

TEST_F(LogSheets, ShowTheRowsOfTheWorkedPage) {
    const Lines sheet = SheetOf({"13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"});
    const Lines below{"       05-09-26 13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW   ", " ",
                      "       Ialt denne side:                                 10    1           10", " ",
                      "       Ialt akkumuleret:                                10    1           10"};
    EXPECT_EQ(sheet, kSheetTop + below);
}

TEST_F(LogSheets, PutTheWorkedTotalsUnderTheirColumns) {
    EXPECT_EQ(TotalRow(kFileTotals, kThisPage, {240, 31, 7440}),
              "       Ialt denne side:                                240   31         7440");
    EXPECT_EQ(TotalRow(kFileTotals, kAccumulated, {480, 62, 29760}),
              "       Ialt akkumuleret:                               480   62        29760");
}

TEST_F(LogSheets, OfAnEmptyLogHaveHeadingAndTotals) {
    EXPECT_EQ(SheetOf({}), kSheetTop + Lines({" ", kPageNought, " ", kLogNought}));
}

TEST_F(LogSheets, CloseAFullPageAndOpenAnother) {
    const Lines fullPage = kSheetTop + Times(50, kSheetRow) +
                           Lines{" ", "       Ialt denne side:                                150    0            0", " ",
                                 "       Ialt akkumuleret:                               150    0            0", "\f"} +
                           kSheetTop;
    EXPECT_EQ(SheetOf(Times(50, Contact({}))),
              fullPage + Lines({" ", kPageNought, " ", "       Ialt akkumuleret:                               150    0            0"}));
    EXPECT_EQ(SheetOf(Times(51, Contact({}))),
              fullPage + Lines({kSheetRow, " ", "       Ialt denne side:                                  3    0            0", " ",
                                "       Ialt akkumuleret:                               153    0            0"}));
}

TEST_F(LogSheets, MultiplyTheSumsOfTheLogAndDoNotAddThePages) {
    // Page 1: 2 multipliers, 150 points. Page 2: 1 multiplier, 3 points. The log: 3 and 153.
    const Lines log = Times(2, Contact({.mult = "DL"})) + Times(48, Contact({})) + Lines{Contact({.mult = "G"})};
    const Lines sheet = SheetOf(log);
    ASSERT_EQ(sheet.size(), 4U + 50 + 4 + 1 + 4 + 1 + 4);
    EXPECT_EQ(sheet[55], "       Ialt denne side:                                150    2          300");
    EXPECT_EQ(sheet[57], "       Ialt akkumuleret:                               150    2          300");
    EXPECT_EQ(sheet[65], "       Ialt denne side:                                  3    1            3");
    EXPECT_EQ(sheet[67], "       Ialt akkumuleret:                               153    3          459");
}

TEST_F(LogSheets, GiveNotesAPlaceWithoutShowingThem) {
    const Lines sheet = SheetOf(Times(10, "NOTE: pause") + Times(50, Contact({})));
    EXPECT_EQ(sheet[44], " ");
    EXPECT_EQ(sheet[45], "       Ialt denne side:                                120    0            0");
    EXPECT_EQ(sheet[48], "\f");
    EXPECT_EQ(sheet.size(), 4U + 40 + 4 + 1 + 4 + 10 + 4);
}

TEST_F(LogSheets, CountThePointsOfANoteButNotItsMultiplier) {
    EXPECT_EQ(SheetOf({NoteWith("17", "DL")})[5], "       Ialt denne side:                                 17    0            0");
}

TEST_F(LogSheets, KnowTheMarkOfANoteInUpperCaseOnly) {
    const Lines sheet = SheetOf({"note: pause"});
    // The line has no date. A line that ends before the multiplier column counts as a multiplier.
    EXPECT_EQ(sheet[4], "        note: pause");
    EXPECT_EQ(sheet[6], "       Ialt denne side:                                  0    1            0");
}

TEST_F(LogSheets, ShowADuplicateAndCountNoMultiplierForIt) {
    const Lines sheet = SheetOf({Contact({.points = 0, .mult = "-DUPE-"})});
    EXPECT_EQ(sheet[4], "       05-09-26 13:05 DL1AA           599-0012 579-0034  0 -DUPE-     OZ1AB      CW   ");
    EXPECT_EQ(sheet[6], kPageNought);
}

TEST_F(LogSheets, AreHeadedWithTheYearOfTheClockAndRowsWithTheirOwn) {
    context.now = {2031, 2, 3, 4, 5, 6, 0};
    const Lines sheet = SheetOf({Contact({.date = "07-09-02"})});
    EXPECT_EQ(sheet[0], "       Fieldday log for OZ1AB/P 2031, (Vatro version 1.2.3)");
    EXPECT_EQ(sheet[4].substr(7, 8), "07-09-02");
}

TEST_F(LogSheets, AreNamedAfterTheirLog) {
    EXPECT_EQ(LogSheetName({"15m", "SSB"}), "SM15mSSB.txt");
}

TEST_F(LogSheets, LeaveAnyFailureToTheCaller) {
    WrittenLines sheet;
    ListedLines unreadable(Times(3, Contact({})), 2);
    EXPECT_THROW(DanKrop(unreadable, sheet, context, k80mCW), RunTimeError);
    EXPECT_EQ(sheet.lines, Lines({kSheetRow, kSheetRow}));
    sheet.room = 3;
    ListedLines lines(Times(3, Contact({})));
    EXPECT_THROW(DanKrop(lines, sheet, context, k80mCW), RunTimeError);
}

}  // namespace
}  // namespace vatro
