// SPDX-License-Identifier: MIT
#include "printing/printer.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "frame/state.h"
#include "paper_program.h"
#include "scene_pages.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

const std::string kPrintedColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";
const std::string kRow = "       05-09-26 13:05 DL1AA           599-0012 579-0034  3            OZ1AB      CW   ";
// Points end at 57, multipliers at 67, the score at 80.
const std::string kPrintedPageNought = "       Ialt denne side:                                  0         0            0";
const std::string kPrintedLogNought = "       Ialt akkumuleret:                                 0         0            0";

/// Prints on pages of 595 by 842 points; a character is 0.6 times its size wide and 1.2 times its size high.
class Printing : public PaperProgram {
protected:
    Printing() { InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, surface, {1, 2, 3}}); }

    /// Everything that a menu entry prints, with place, font, size and style.
    Lines Placed(MenuItem& item) {
        Choose(item);
        return scene.TakeJobs();
    }
    /// The same, but only the texts.
    Lines Printed(MenuItem& item) {
        Lines texts = Placed(item);
        for (std::string& line : texts)
            if (line.ends_with('"')) line = line.substr(line.find('"') + 1, line.size() - line.find('"') - 2);
        return texts;
    }
    static Lines Head(const std::string& page, const std::string& title) { return {page, "Fieldday log for OZ1AB/P 2026", title}; }
    static Lines LogHead(int page) { return Head("page " + std::to_string(page), "80m CW") + Lines{kPrintedColumns}; }
    static std::string Foot(int page) { return "Side  " + std::to_string(page) + ", (Vatro version 1.2.3)"; }
    /// Rows of one text in groups of ten with a gap above each group.
    static Lines Groups(int n, const std::string& row) {
        Lines rows;
        for (int i = 0; i < n; ++i) {
            if (i % 10 == 0) rows.emplace_back(" ");
            rows.push_back(row);
        }
        return rows;
    }

    ScenePages scene;
    PageSurface surface{scene};
};

TEST_F(Printing, PlacesTextsOnThePage) {
    Log("80mCW", {Contact({})});
    EXPECT_EQ(Placed(frmMain->mnuUdskriv80mCW),
              Lines({"job", "page 1",
                     // Both lines are centred on 595: 29 characters of 21.6, and 6 of 10.8.
                     "-15.7 0.0 Arial 36 u \"Fieldday log for OZ1AB/P 2026\"", "265.1 43.2 Arial 18 b \"80m CW\"",
                     "0.0 76.8 Courier New 10 b \"" + kPrintedColumns + "\"", "0.0 88.8 Courier New 10 - \" \"",
                     "0.0 100.8 Courier New 10 - \"" + kRow + "\"", "0.0 112.8 Courier New 10 - \" \"",
                     "0.0 124.8 Courier New 10 - \"       Ialt denne side:                                  3         0            0\"",
                     "0.0 136.8 Courier New 10 - \" \"",
                     "0.0 148.8 Courier New 10 - \"       Ialt akkumuleret:                                 3         0            0\"",
                     // 30 characters of 6.6; the last line is 13.2 high.
                     "198.5 828.8 Arial 11 - \"Side  1, (Vatro version 1.2.3)\""}));
    EXPECT_THAT(Progress(), ElementsAre("Udskriv log", "80m CW"));
    EXPECT_TRUE(IsFree(1));
}

TEST_F(Printing, OfAnEmptyLogHasHeadingsTotalsAndFooter) {
    Log("80mCW", {});
    EXPECT_EQ(Printed(frmMain->mnuUdskriv80mCW),
              Lines{"job"} + LogHead(1) + Lines({" ", kPrintedPageNought, " ", kPrintedLogNought, Foot(1)}));
}

TEST_F(Printing, OfAMissingLogIsAnEmptyJob) {
    EXPECT_EQ(Placed(frmMain->mnuUdskriv80mCW), Lines{"job"});
}

TEST_F(Printing, OfFiftyLinesTakesASecondPage) {
    Log("80mCW", Times(50, Contact({})));
    const std::string sums = "       Ialt akkumuleret:                               150         0            0";
    const Lines first = LogHead(1) + Groups(50, kRow) +
                        Lines{" ", "       Ialt denne side:                                150         0            0", " ", sums, Foot(1)};
    EXPECT_EQ(Printed(frmMain->mnuUdskriv80mCW), Lines{"job"} + first + LogHead(2) + Lines({" ", kPrintedPageNought, " ", sums, Foot(2)}));
}

TEST_F(Printing, GivesNotesAPlaceInTheGroupsOfTen) {
    Log("80mCW", Lines{"NOTE: pause"} + Times(10, Contact({})));
    const Lines printed = Printed(frmMain->mnuUdskriv80mCW);
    EXPECT_EQ(Lines(printed.begin() + 5, printed.begin() + 17), Lines{" "} + Times(9, kRow) + Lines({" ", kRow}));
}

TEST_F(Printing, CountsAsTheSheetDoes) {
    Log("80mCW", {Contact({.points = 10, .mult = "OZ"}), Contact({.points = 0, .mult = "-DUPE-"}), NoteWith("17", "DL")});
    const Lines printed = Printed(frmMain->mnuUdskriv80mCW);
    EXPECT_EQ(printed[9], "       Ialt denne side:                                 27         1           27");
}

TEST_F(Printing, OfTheSummaryFillsTheSheet) {
    desk().gsMyCall = "OZ1ABC/P";
    desk().gsTelefon = "87654321";
    desk().rigs[0] = "IC-751";
    desk().antennas[0] = "Dipol";
    Log("80mCW", Times(31, Contact({.points = 2, .mult = "DL", .operatorCall = "OZ9Z"})) +
                     Times(89, Contact({.points = 2, .operatorCall = "OZ1AB"})));
    Log("80mSSB", Times(22, Contact({.points = 2, .mult = "DL"})) + Times(58, Contact({.points = 2})));
    Lines wanted{"job",
                 "page 1",
                 "Fieldday log for OZ1ABC/P 2026",
                 "Summary ",
                 "       Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger",
                 "        ",
                 "       Kaldesignal: OZ1ABC/P          Kategori: A              Antal logsider:  1",
                 "        ",
                 "       Navn: Test, formand" + std::string(73 - 13, ' '),
                 "        ",
                 "       Operatørernes kaldesignaler: ",
                 "        ",
                 "       OZ1AB, OZ9Z",
                 "        ",
                 "                   QSOs                        Band   Total   Total    Total     Stn/Ant",
                 "       Bånd        -dubs  Mults x Points =     score  Mult  x Points = Bandscore",
                 "        ",
                 "       3,5 MHz CW    120     31 x    240 =      7440                             IC-751",
                 "       3,5 MHz SSB    80     22 x    160 =      3520     53 x    400 =     21200 Dipol",
                 "        "};
    for (const char* band : {"  7 MHz", " 14 MHz", " 21 MHz", " 28 MHz"})
        wanted = wanted + Lines{"       " + std::string(band) + " CW      0      0 x      0 =         0                             ",
                                "       " + std::string(band) + " SSB     0      0 x      0 =         0      0 x      0 =         0 ",
                                "        "};
    wanted = wanted + Lines{"       Total:       200" + std::string(34, ' ') + "53 x    400 =     21200",
                            "        ",
                            "       Ansvarshavende/Formand:",
                            "        ",
                            "        ",
                            "       Telefon (hvis der er spørgsmål): ",
                            "87654321",
                            Foot(1)};
    EXPECT_EQ(Printed(frmMain->mnuUdskrivSummary), wanted);
    EXPECT_THAT(Progress(), ElementsAre("Udskriv log", "Summary"));
}

TEST_F(Printing, PutsTheTelephoneBehindItsQuestion) {
    desk().gsTelefon = "87654321";
    const Lines placed = Placed(frmMain->mnuUdskrivSummary);
    // Seven blanks and 33 characters of 6 each; 33 rows are above it, beginning at 76.8.
    const std::string question = "0.0 472.8 Courier New 10 - \"       Telefon (hvis der er spørgsmål): \"";
    EXPECT_EQ(placed[placed.size() - 3], question);
    EXPECT_EQ(placed[placed.size() - 2], "240.0 472.8 Courier New 10 - \"87654321\"");
    desk().gsTelefon = "12345678";
    const Lines without = Placed(frmMain->mnuUdskrivSummary);
    EXPECT_EQ(without[without.size() - 2], question);
}

TEST_F(Printing, OfTheMultiplierSheetPutsTheTableOnPages) {
    Lines log;
    for (int i = 0; i < 52; ++i) log.push_back(Contact({.mult = i < 26 ? "DL" : "G"}));
    Log("10mCW", log);
    const std::string modes = "       CW     SSB    CW     SSB    CW     SSB    CW     SSB    CW     SSB    ";
    const std::string germanRow = "       DL     " + std::string(63, ' ');
    const std::string g = "       G      " + std::string(63, ' ');
    const Lines first = Head("page 1", "Multiplier Checksheet") +
                        Lines{" ", "       10m    10m    15m    15m    20m    20m    40m    40m    80m    80m    ", modes, " "} +
                        Times(26, germanRow) + Times(25, g) + Lines{Foot(1)};
    const Lines second = Head("page 2", "Multiplier Checksheet") +
                         Lines{" ", "       10m           15m           20m           40m           80m           ", modes, g, Foot(2)};
    EXPECT_EQ(Printed(frmMain->mnuFilerUdskrivMult), Lines{"job"} + first + second);
    EXPECT_THAT(Progress(), ElementsAre("Udskriv log", "Multiplier checksheet"));
    EXPECT_FALSE(HasPaper("Mult.txt"));
}

TEST_F(Printing, AltogetherIsOneJobInWhichEveryPaperBeginsAPage) {
    Log("80mCW", {Contact({})});
    Log("10mSSB", {Contact({.mode = "SSB"})});
    const Lines printed = Printed(frmMain->mnuUdskrivAlt);
    Lines starts;
    for (std::size_t i = 0; i + 2 < printed.size(); ++i)
        if (printed[i].starts_with("page ")) starts.push_back(printed[i] + ": " + printed[i + 2]);
    EXPECT_THAT(starts, ElementsAre("page 1: 80m CW", "page 2: 10m SSB", "page 3: Multiplier Checksheet", "page 4: Summary "));
    EXPECT_EQ(std::count(printed.begin(), printed.end(), "job"), 1);
    EXPECT_EQ(printed.back(), Foot(4));
    // The number of pages so far, including this one.
    EXPECT_EQ(
        std::count(printed.begin(), printed.end(), "       Kaldesignal: OZ1AB/P          Kategori: A              Antal logsider:  4"), 1);
    EXPECT_THAT(Progress(), ElementsAre("Udskriv log", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB", "Multiplier checksheet", "Summary"));
}

TEST_F(Printing, OfUnknownPrefixesHasFortyNineLinesOnItsFirstPage) {
    Lines unknown;
    for (int i = 0; i < 51; ++i) unknown.push_back("80m SSB " + std::to_string(1000 + i));
    files.files["LOG\\UKENDT.TXT"] = unknown;
    Lines wanted = Lines{"job"} + Head("page 1", "ukendt ");
    for (int i = 0; i < 49; ++i) wanted.push_back("       80m SSB " + std::to_string(1000 + i));
    wanted.push_back(Foot(1));
    wanted = wanted + Head("page 2", "ukendt ") + Lines{"       80m SSB 1049", "       80m SSB 1050", Foot(2)};
    EXPECT_EQ(Printed(frmMain->mnuUdskrivUkendt), wanted);
    EXPECT_THAT(Progress(), ElementsAre("Udskriv log", "Ukendte præfixer"));
}

TEST_F(Printing, OfUnknownPrefixesLeavesAnEmptyLineAboveEachGroupOfTen) {
    files.files["LOG\\UKENDT.TXT"] = Times(11, "x");
    const Lines placed = Placed(frmMain->mnuUdskrivUkendt);
    EXPECT_EQ(placed[4], "0.0 88.8 Courier New 10 - \"       x\"");
    EXPECT_EQ(placed[13], "0.0 196.8 Courier New 10 - \"       x\"");
    EXPECT_EQ(placed[14], "0.0 220.8 Courier New 10 - \"       x\"");
}

TEST_F(Printing, WithoutUnknownPrefixesSaysSoAndEndsTheJob) {
    dialogs.Expect("Der er ingen ukendte præfixer.");
    EXPECT_EQ(Placed(frmMain->mnuUdskrivUkendt), Lines{"job"});
    EXPECT_TRUE(IsFree(1));
}

TEST_F(Printing, TakesAFailureOnTheWayForNoUnknownPrefixes) {
    files.files["LOG\\UKENDT.TXT"] = Times(3, "x");
    files.FailFrom("read", 2, Failure::DiskNotReady);
    dialogs.Expect("Der er ingen ukendte præfixer.");
    EXPECT_EQ(Printed(frmMain->mnuUdskrivUkendt), Lines{"job"} + Head("page 1", "ukendt ") + Lines{"       x"});
    EXPECT_TRUE(IsFree(1));
}

TEST_F(Printing, HasAnEntryForEachBandAndMode) {
    const std::vector<std::pair<MenuItem*, std::string>> entries{
        {&frmMain->mnuUdskriv10mCW, "10m CW"},   {&frmMain->mnuUdskriv10mSSB, "10m SSB"}, {&frmMain->mnuUdskriv15mCW, "15m CW"},
        {&frmMain->mnuUdskriv15mSSB, "15m SSB"}, {&frmMain->mnuUdskriv20mCW, "20m CW"},   {&frmMain->mnuUdskriv20mSSB, "20m SSB"},
        {&frmMain->mnuUdskriv40mCW, "40m CW"},   {&frmMain->mnuUdskriv40mSSB, "40m SSB"}, {&frmMain->mnuUdskriv80mCW, "80m CW"},
        {&frmMain->mnuUdskriv80mSSB, "80m SSB"}};
    for (const auto& [entry, log] : entries) Log(log.substr(0, 3) + log.substr(4), {});
    for (const auto& [entry, log] : entries) EXPECT_EQ(Printed(*entry)[3], log);
}

TEST_F(Printing, EndsALogThatCannotBeReadInSilence) {
    Log("80mCW", Times(3, Contact({})));
    files.FailFrom("read", 2, Failure::DiskNotReady);
    EXPECT_EQ(Printed(frmMain->mnuUdskriv80mCW), Lines{"job"} + LogHead(1) + Lines({" ", kRow}));
    EXPECT_TRUE(IsFree(1));
}

TEST_F(Printing, AsksForThePrinterAndTakesCancelForAnAnswer) {
    Choose(frmMain->mnuFilePageSetup);
    EXPECT_EQ(dialogs.printerDialogues, 1);
    EXPECT_TRUE(dialogs.failures.empty());
    dialogs.chosen = "printer";
    Choose(frmMain->mnuFilePageSetup);
    EXPECT_EQ(dialogs.printerDialogues, 2);
}

}  // namespace
}  // namespace vatro
