// SPDX-License-Identifier: MIT
#include "papers/log_sheets.h"

#include <gmock/gmock.h>

#include "paper_program.h"
#include "papers/layout.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

const std::string kHead = "       Fieldday log for OZ1AB/P 2026, (Vatro version 1.2.3)";
const std::string kColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";
// Points end at 57, multipliers at 62, the score at 75.
const std::string kPageNought = "       Ialt denne side:                                  0    0            0";
const std::string kLogNought = "       Ialt akkumuleret:                                 0    0            0";
const Lines kTop{kHead, "       80m CW", " ", kColumns};
const std::string kRow = "       05-09-26 13:05 DL1AA           599-0012 579-0034  3            OZ1AB      CW   ";

class LogSheets : public PaperProgram {
protected:
    Lines SheetOf(const Lines& lines) {
        Log("80mCW", lines);
        Choose(frmMain->mnuEfter80mCW);
        return Paper("SM80mCW.txt");
    }
};

TEST_F(LogSheets, ShowTheRowsOfTheWorkedPage) {
    const Lines sheet = SheetOf({"13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"});
    const Lines below{"       05-09-26 13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW   ", " ",
                      "       Ialt denne side:                                 10    1           10", " ",
                      "       Ialt akkumuleret:                                10    1           10"};
    EXPECT_EQ(sheet, kTop + below);
}

TEST_F(LogSheets, PutTheWorkedTotalsUnderTheirColumns) {
    EXPECT_EQ(Ialtrække(kIaltFil, kDenneSide, {240, 31, 7440}),
              "       Ialt denne side:                                240   31         7440");
    EXPECT_EQ(Ialtrække(kIaltFil, kAkkumuleret, {480, 62, 29760}),
              "       Ialt akkumuleret:                               480   62        29760");
}

TEST_F(LogSheets, OfAnEmptyLogHaveHeadingAndTotals) {
    EXPECT_EQ(SheetOf({}), kTop + Lines({" ", kPageNought, " ", kLogNought}));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(LogSheets, CloseAFullPageAndOpenAnother) {
    const Lines fullPage = kTop + Times(50, kRow) +
                           Lines{" ", "       Ialt denne side:                                150    0            0", " ",
                                 "       Ialt akkumuleret:                               150    0            0", "\f"} +
                           kTop;
    EXPECT_EQ(SheetOf(Times(50, Contact({}))),
              fullPage + Lines({" ", kPageNought, " ", "       Ialt akkumuleret:                               150    0            0"}));
    EXPECT_EQ(SheetOf(Times(51, Contact({}))),
              fullPage + Lines({kRow, " ", "       Ialt denne side:                                  3    0            0", " ",
                                "       Ialt akkumuleret:                               153    0            0"}));
}

TEST_F(LogSheets, MultiplyTheSumsOfTheLogAndDoNotAddThePages) {
    // Page 1: 2 multipliers, 150 points. Page 2: 1 multiplier, 3 points. Log: 3 and 153.
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
    // No date, and a line that ends before the multiplier counts as one.
    EXPECT_EQ(sheet[4], "        note: pause");
    EXPECT_EQ(sheet[6], "       Ialt denne side:                                  0    1            0");
}

TEST_F(LogSheets, ShowADuplicateAndCountNoMultiplierForIt) {
    const Lines sheet = SheetOf({Contact({.points = 0, .mult = "-DUPE-"})});
    EXPECT_EQ(sheet[4], "       05-09-26 13:05 DL1AA           599-0012 579-0034  0 -DUPE-     OZ1AB      CW   ");
    EXPECT_EQ(sheet[6], kPageNought);
}

TEST_F(LogSheets, AreHeadedWithTheYearOfTheClockAndRowsWithTheirOwn) {
    clock.now = {2031, 2, 3, 4, 5, 6, 0};
    const Lines sheet = SheetOf({Contact({.date = "07-09-02"})});
    EXPECT_EQ(sheet[0], "       Fieldday log for OZ1AB/P 2031, (Vatro version 1.2.3)");
    EXPECT_EQ(sheet[4].substr(7, 8), "07-09-02");
}

TEST_F(LogSheets, OfAnUnworkedBandAreNotMade) {
    files.files["LOG\\SM80MCW.TXT"] = {"old"};
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_EQ(Paper("SM80mCW.txt"), Lines{"old"});
    EXPECT_TRUE(IsFree(1));
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "80m CW"));
}

TEST_F(LogSheets, ThatCannotBeWrittenEndInSilenceAndLeaveTheFilesOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("write", 5, Failure::DiskFull);
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(IsFree(1));
    EXPECT_FALSE(IsFree(2));
    EXPECT_EQ(Paper("SM80mCW.txt"), kTop);
}

TEST_F(LogSheets, ThatCannotBeCreatedLeaveTheLogOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("open", 2, Failure::PermissionDenied);
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_TRUE(ProgramRuns());
    files.FailFrom("open", 1000, Failure::PermissionDenied);
    EXPECT_FALSE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(LogSheets, HaveAnEntryForEachBandAndMode) {
    const std::vector<std::pair<MenuItem*, std::string>> entries{{&frmMain->mnuEfter10mCW, "10mCW"}, {&frmMain->mnuEfter10mSSB, "10mSSB"},
                                                                 {&frmMain->mnuEfter15mCW, "15mCW"}, {&frmMain->mnuEfter15mSSB, "15mSSB"},
                                                                 {&frmMain->mnuEfter20mCW, "20mCW"}, {&frmMain->mnuEfter20mSSB, "20mSSB"},
                                                                 {&frmMain->mnuEfter40mCW, "40mCW"}, {&frmMain->mnuEfter40mSSB, "40mSSB"},
                                                                 {&frmMain->mnuEfter80mCW, "80mCW"}, {&frmMain->mnuEfter80mSSB, "80mSSB"}};
    for (const auto& [entry, log] : entries) Log(log, {Contact({})});
    for (const auto& [entry, log] : entries) {
        Choose(*entry);
        ASSERT_TRUE(HasPaper("SM" + log + ".txt")) << log;
        EXPECT_EQ(Paper("SM" + log + ".txt")[1], "       " + log.substr(0, 3) + " " + log.substr(3));
    }
}

TEST_F(LogSheets, AltogetherRunFrom80MetresUpThenMultipliersAndSummary) {
    Log("15mSSB", {Contact({.mode = "SSB"})});
    Choose(frmMain->mnuEfterAlt);
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB", "Multiplier checksheet", "Summary"));
    EXPECT_TRUE(HasPaper("SM15mSSB.txt"));
    EXPECT_FALSE(HasPaper("SM15mCW.txt"));
    EXPECT_TRUE(HasPaper("Mult.txt"));
    EXPECT_TRUE(HasPaper("Summary.txt"));
}

TEST_F(LogSheets, LeaveTheProgressWindowOpenWithWhatItLists) {
    Choose(frmMain->mnuEfter10mCW);
    Choose(frmMain->mnuEfter10mSSB);
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "10m CW", "10m SSB"));
    EXPECT_TRUE(frmInfo->Visible());
    Dispatch([] { frmInfo->cmdLuk.Press(); });
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(LogSheets, ChangeNoLog) {
    const Lines log{Contact({.mult = "DL"}), "NOTE: x", ""};
    SheetOf(log);
    EXPECT_EQ(LinesOf("log\\FD80mCW.txt"), log);
}

}  // namespace
}  // namespace vatro
