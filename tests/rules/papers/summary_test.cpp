// SPDX-License-Identifier: MIT
#include "papers/summary.h"

#include "paper_lines.h"

namespace vatro {
namespace {

const Lines kNothing{
    "Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger",
    " ",
    "Kaldesignal: OZ1AB/P        Kategori: A   Antal logsider: ",
    " ",
    "Navn: ",
    " ",
    "Operatørernes kaldesignaler: ",
    " ",
    "Bånd        QSOs - Dubs  Mults x Points = Band score  Mult total x Points total = Bandscore total  Stn/Ant",
    "3,5 MHz CW       0           0 x      0 =        0                                                 /",
    "3,5 MHz SSB      0           0 x      0 =        0             0 x            0 =               0",
    "  7 MHz CW       0           0 x      0 =        0                                                 /",
    "  7 MHz SSB      0           0 x      0 =        0             0 x            0 =               0",
    " 14 MHz CW       0           0 x      0 =        0                                                 /",
    " 14 MHz SSB      0           0 x      0 =        0             0 x            0 =               0",
    " 21 MHz CW       0           0 x      0 =        0                                                 /",
    " 21 MHz SSB      0           0 x      0 =        0             0 x            0 =               0",
    " 28 MHz CW       0           0 x      0 =        0                                                 /",
    " 28 MHz SSB      0           0 x      0 =        0             0 x            0 =               0",
    " ",
    "Total:           0                                             0 x            0 =               0",
    " ",
    "Ansvarshavende/Formand",
    " ",
    " ",
    "Telefon (hvis der er spørgsmål): ",
};

class Summary : public Papers {
protected:
    Lines Sheet() {
        WrittenLines sheet;
        WriteSummary(sheet, context, TallyLogs(logs, stations, context.call));
        EXPECT_FALSE(logs.open);
        return sheet.lines;
    }
};

TEST_F(Summary, WithoutALogHasAllItsLines) {
    EXPECT_EQ(Sheet(), kNothing);
}

TEST_F(Summary, ShowsTheRowsOfTheWorkedExample) {
    // 120 contacts, 31 multipliers and 240 points; then 80, 22 and 160.
    Log("80mCW", Times(31, Contact({.points = 2, .mult = "DL"})) + Times(89, Contact({.points = 2})));
    Log("80mSSB", Times(22, Contact({.points = 2, .mult = "DL"})) + Times(58, Contact({.points = 2})));
    // The rest of the totals 640, 215 and 1610.
    Log("20mCW", Times(162, Contact({.points = 3, .mult = "DL"})) + Times(200, Contact({.points = 3})) + Lines{Contact({.points = 10})} +
                     Times(77, Contact({.points = 1})));
    Log("10mCW", {NoteWith("37", "")});
    context.equipment[4] = {"IC-751", "Dipol"};
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[8], "Bånd        QSOs - Dubs  Mults x Points = Band score  Mult total x Points total = Bandscore total  Stn/Ant");
    EXPECT_EQ(sheet[9], "3,5 MHz CW     120          31 x    240 =     7440                                                 IC-751/Dipol");
    EXPECT_EQ(sheet[10], "3,5 MHz SSB     80          22 x    160 =     3520            53 x          400 =           21200");
    EXPECT_EQ(sheet[20], "Total:         640                                           215 x         1610 =          346150");
}

TEST_F(Summary, TakesEachRowFromItsLog) {
    // Each log has its own number of points.
    int points = 0;
    for (const char* log : {"80mCW", "80mSSB", "40mCW", "40mSSB", "20mCW", "20mSSB", "15mCW", "15mSSB", "10mCW", "10mSSB"})
        Log(log, {Contact({.points = ++points, .mult = "DL"})});
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[9], "3,5 MHz CW       1           1 x      1 =        1                                                 /");
    EXPECT_EQ(sheet[10], "3,5 MHz SSB      1           1 x      2 =        2             2 x            3 =               6");
    EXPECT_EQ(sheet[11], "  7 MHz CW       1           1 x      3 =        3                                                 /");
    EXPECT_EQ(sheet[12], "  7 MHz SSB      1           1 x      4 =        4             2 x            7 =              14");
    EXPECT_EQ(sheet[13], " 14 MHz CW       1           1 x      5 =        5                                                 /");
    EXPECT_EQ(sheet[14], " 14 MHz SSB      1           1 x      6 =        6             2 x           11 =              22");
    EXPECT_EQ(sheet[15], " 21 MHz CW       1           1 x      7 =        7                                                 /");
    EXPECT_EQ(sheet[16], " 21 MHz SSB      1           1 x      8 =        8             2 x           15 =              30");
    EXPECT_EQ(sheet[17], " 28 MHz CW       1           1 x      9 =        9                                                 /");
    EXPECT_EQ(sheet[18], " 28 MHz SSB      1           1 x     10 =       10             2 x           19 =              38");
    EXPECT_EQ(sheet[20], "Total:          10                                            10 x           55 =             550");
}

TEST_F(Summary, CountsEachKindOfLineAtItsEdges) {
    struct Case {
        const char* what;
        std::string line;
        int qsos, mults, points;
        const char* operators;
    };
    const std::vector<Case> cases{
        {"no multiplier", Contact({.points = 3}), 1, 0, 3, ",OZ1AB"},
        {"multiplier", Contact({.points = 6, .mult = "VK"}), 1, 1, 6, ",OZ1AB"},
        {"duplicate", Contact({.points = 0, .mult = "-DUPE-"}), 0, 0, 0, ",OZ1AB"},
        {"duplicate with points", Contact({.points = 4, .mult = "-DUPE-"}), 0, 0, 4, ",OZ1AB"},
        {"short note", "NOTE: x", 0, 0, 0, ","},
        {"note with points and a multiplier", NoteWith("17", "DL"), 0, 0, 17, ","},
        {"note that reaches column 55", "NOTE: " + std::string(48, '.') + "abcdefgh", 0, 0, 0, ",abcdef"},
        {"mark in lower case", "note: x", 1, 1, 0, ","},
        {"imported contact", Contact({.points = 3, .mult = "DL", .operatorCall = "CT-IMP"}), 1, 1, 3, ""},
        {"empty line", "", 1, 1, 0, ","},
        {"line that ends at column 42", Contact({.points = 5}).substr(0, 42), 1, 1, 5, ","},
        {"line that ends at column 44, a blank", Contact({.points = 5}).substr(0, 44), 1, 0, 5, ","},
        {"duplicate mark in lower case", Contact({.points = 0, .mult = "-dupe-"}), 1, 1, 0, ",OZ1AB"},
        {"blanks before the operator", Contact({.operatorCall = " OZ1A"}), 1, 0, 3, ", OZ1A"},
    };
    for (const Case& told : cases) {
        Log("80mCW", {told.line});
        const auto [sum, operators] = SumLog(logs, k80mCW, {});
        EXPECT_EQ(sum.QSOs, told.qsos) << told.what;
        EXPECT_EQ(sum.Mults, told.mults) << told.what;
        EXPECT_EQ(sum.Points, told.points) << told.what;
        EXPECT_EQ(operators, told.operators) << told.what;
    }
}

TEST_F(Summary, DoesNotAddAnOperatorWhoseCallIsPartOfAnother) {
    Log("80mCW", {Contact({.operatorCall = "OZ1AB"}), Contact({.operatorCall = "OZ1A"}), Contact({.operatorCall = "oz1a"})});
    EXPECT_EQ(Sheet()[6], "Operatørernes kaldesignaler: OZ1AB, oz1a");
    Log("80mCW", {Contact({.operatorCall = "OZ1A"}), Contact({.operatorCall = "OZ1AB"})});
    EXPECT_EQ(Sheet()[6], "Operatørernes kaldesignaler: OZ1A, OZ1AB");
}

TEST_F(Summary, ListsTheOperatorsOfAllLogsSortedByCharacter) {
    Log("10mCW", {Contact({.operatorCall = "OZ9Z"}), Contact({.operatorCall = "ab1c"})});
    Log("80mSSB",
        {Contact({.operatorCall = "5P1A"}), Contact({.operatorCall = "OZ1AB", .mode = "SSB"}), Contact({.operatorCall = "OZ9Z"})});
    EXPECT_EQ(Sheet()[6], "Operatørernes kaldesignaler: 5P1A, OZ1AB, OZ9Z, ab1c");
}

TEST_F(Summary, BeginsTheListWithTheNobodyOfAnEmptyFirstLine) {
    Log("80mCW", {"", Contact({.operatorCall = "OZ1AB"})});
    EXPECT_EQ(Sheet()[6], "Operatørernes kaldesignaler: , OZ1AB");
}

TEST_F(Summary, ListsTheOperatorsOfDuplicatesAlone) {
    Log("80mCW", Times(3, Contact({.points = 0, .mult = "-DUPE-"})));
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[6], "Operatørernes kaldesignaler: OZ1AB");
    EXPECT_EQ(sheet[9], "3,5 MHz CW       0           0 x      0 =        0                                                 /");
}

TEST_F(Summary, SortsNoneOneAndManyOperators) {
    EXPECT_EQ(SortOper(""), "");
    EXPECT_EQ(SortOper("OZ1AB"), "OZ1AB");
    EXPECT_EQ(SortOper("b,a,A,9,aa,\xE6"), "9, A, a, aa, b, \xE6");
    EXPECT_EQ(SortOper(",x"), ", x");
    EXPECT_EQ(SortOper("x,"), ", x");
}

TEST_F(Summary, FillsToTheNextPrintZone) {
    const auto line = [this](const char* call, const char* contestClass) {
        context.call = call;
        context.contestClass = contestClass;
        return Sheet()[2];
    };
    EXPECT_EQ(line("", "B"), "Kaldesignal:  Kategori: B   Antal logsider: ");
    // Texts start at print zones of 14 characters. "Kaldesignal: X" fills the first zone exactly, so the next text starts one
    // whole zone further on.
    EXPECT_EQ(line("X", "B"), "Kaldesignal: X              Kategori: B   Antal logsider: ");
    EXPECT_EQ(line("OZ1ABCDEFGHIJK", "B"), "Kaldesignal: OZ1ABCDEFGHIJK Kategori: B   Antal logsider: ");
}

TEST_F(Summary, TellsTheTelephoneUnlessItIsTheDefault) {
    context.phone = "87654321";
    EXPECT_EQ(Sheet()[25], "Telefon (hvis der er spørgsmål): 87654321");
    context.phone = "12345678";
    EXPECT_EQ(Sheet()[25], "Telefon (hvis der er spørgsmål): ");
    context.phone = "";
    EXPECT_EQ(Sheet()[25], "Telefon (hvis der er spørgsmål): ");
}

TEST_F(Summary, PutsTheEquipmentOnTheCwRowOfItsBand) {
    context.equipment = {{{"R10", "A10"}, {"R15", "A15"}, {"R20", "A20"}, {"R40", "A40"}, {"R80", "A80"}}};
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[9].substr(99), "R80/A80");
    EXPECT_EQ(sheet[11].substr(99), "R40/A40");
    EXPECT_EQ(sheet[13].substr(99), "R20/A20");
    EXPECT_EQ(sheet[15].substr(99), "R15/A15");
    EXPECT_EQ(sheet[17].substr(99), "R10/A10");
    EXPECT_EQ(sheet[10].size(), 97U);
}

TEST_F(Summary, AddsToTheOperatorsOfEarlierLogs) {
    Log("80mCW", {Contact({.points = 6, .mult = "VK"})});
    const LogCount count = SumLog(logs, k80mCW, ",OZ9Z");
    EXPECT_EQ(count.sum.QSOs, 1);
    EXPECT_EQ(count.sum.Mults, 1);
    EXPECT_EQ(count.sum.Points, 6);
    EXPECT_EQ(count.Operators, ",OZ9Z,OZ1AB");
}

TEST_F(Summary, PassesOverALogThatCannotBeOpened) {
    Log("80mCW", {Contact({})});
    Log("10mCW", {Contact({})});
    logs.Open({"10m", "CW"});
    EXPECT_EQ(SumLog(logs, k80mCW, {}).sum.QSOs, 0);
    logs.Close();
    EXPECT_EQ(SumLog(logs, k80mCW, {}).sum.QSOs, 1);
}

TEST_F(Summary, KeepsWhatWasCountedBeforeAFailureAndLeavesTheLogOpen) {
    Log("80mCW", Times(5, Contact({})));
    logs.good = 2;
    EXPECT_EQ(SumLog(logs, k80mCW, {}).sum.QSOs, 2);
    EXPECT_TRUE(logs.open);
}

TEST_F(Summary, FailsWhenAScoreOverflows) {
    // 4,700 multipliers times 465,300 points.
    Log("80mCW", Times(4700, Contact({.points = 99, .mult = "DL"})));
    EXPECT_THROW(TallyLogs(logs, stations, {}), RunTimeError);
}

TEST_F(Summary, FailsWhenOnlyTheTotalOverflows) {
    // 4,000 times 396,000 in each of two bands fits, 8,000 times 792,000 does not.
    const Lines log = Times(4000, Contact({.points = 99, .mult = "DL"}));
    Log("80mCW", log);
    EXPECT_EQ(TallyLogs(logs, stations, {}).Total.Score, 1'584'000'000);
    Log("10mSSB", log);
    EXPECT_THROW(TallyLogs(logs, stations, {}), RunTimeError);
}

}  // namespace
}  // namespace vatro
