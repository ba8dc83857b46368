// SPDX-License-Identifier: MIT
#include "printing/sheets.h"

#include <gmock/gmock.h>

#include "frame/state.h"
#include "paper_program.h"
#include "tables/load_tables.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

const std::string kHead = "       Fieldday log for OZ1AB/P 2026, (Vatro version 1.2.3)";
const std::string kColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";
// Points end at 57, multipliers at 62, the score at 75.
const std::string kPageNought = "       Ialt denne side:                                  0    0            0";
const std::string kLogNought = "       Ialt akkumuleret:                                 0    0            0";
const Lines kTop{kHead, "       80m CW", " ", kColumns};

class LogSheetFiles : public PaperProgram {
protected:
    Lines SheetOf(const Lines& lines) {
        Log("80mCW", lines);
        Choose(frmMain->mnuEfter80mCW);
        return Paper("SM80mCW.txt");
    }
};

TEST_F(LogSheetFiles, ShowTheRowsOfTheWorkedPage) {
    const Lines sheet = SheetOf({"13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"});
    const Lines below{"       05-09-26 13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW   ", " ",
                      "       Ialt denne side:                                 10    1           10", " ",
                      "       Ialt akkumuleret:                                10    1           10"};
    EXPECT_EQ(sheet, kTop + below);
}

TEST_F(LogSheetFiles, OfAnEmptyLogHaveHeadingAndTotals) {
    EXPECT_EQ(SheetOf({}), kTop + Lines({" ", kPageNought, " ", kLogNought}));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(LogSheetFiles, OfAnUnworkedBandAreNotMade) {
    files.files["LOG\\SM80MCW.TXT"] = {"old"};
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_EQ(Paper("SM80mCW.txt"), Lines{"old"});
    EXPECT_TRUE(IsFree(1));
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "80m CW"));
}

TEST_F(LogSheetFiles, ThatCannotBeWrittenEndInSilenceAndLeaveTheFilesOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("write", 5, Failure::DiskFull);
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_TRUE(ProgramRuns());
    EXPECT_FALSE(IsFree(1));
    EXPECT_FALSE(IsFree(2));
    EXPECT_EQ(Paper("SM80mCW.txt"), kTop);
}

TEST_F(LogSheetFiles, ThatCannotBeCreatedLeaveTheLogOpen) {
    Log("80mCW", {Contact({})});
    files.FailFrom("open", 2, Failure::PermissionDenied);
    Choose(frmMain->mnuEfter80mCW);
    EXPECT_TRUE(ProgramRuns());
    files.FailFrom("open", 1000, Failure::PermissionDenied);
    EXPECT_FALSE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(LogSheetFiles, HaveAnEntryForEachBandAndMode) {
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

TEST_F(LogSheetFiles, AltogetherRunFrom80MetresUpThenMultipliersAndSummary) {
    Log("15mSSB", {Contact({.mode = "SSB"})});
    Choose(frmMain->mnuEfterAlt);
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB", "Multiplier checksheet", "Summary"));
    EXPECT_TRUE(HasPaper("SM15mSSB.txt"));
    EXPECT_FALSE(HasPaper("SM15mCW.txt"));
    EXPECT_TRUE(HasPaper("Mult.txt"));
    EXPECT_TRUE(HasPaper("Summary.txt"));
}

TEST_F(LogSheetFiles, LeaveTheProgressWindowOpenWithWhatItLists) {
    Choose(frmMain->mnuEfter10mCW);
    Choose(frmMain->mnuEfter10mSSB);
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "10m CW", "10m SSB"));
    EXPECT_TRUE(frmInfo->Visible());
    Dispatch([] { frmInfo->closeButton.Press(); });
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(LogSheetFiles, ChangeNoLog) {
    const Lines log{Contact({.mult = "DL"}), "NOTE: x", ""};
    SheetOf(log);
    EXPECT_EQ(LinesOf("log\\FD80mCW.txt"), log);
}

const Lines kMultHead{"       Fieldday log for OZ1AB/P 2026, (Vatro version 1.2.3)", "       Multiplier Checksheet", " "};
const Lines kMultTop = kMultHead + Lines{" ", "       10m    10m    15m    15m    20m    20m    40m    40m    80m    80m    ",
                                         "       CW     SSB    CW     SSB    CW     SSB    CW     SSB    CW     SSB    ", " "};

class MultCheckFile : public PaperProgram {
protected:
    Lines Sheet() {
        Choose(frmMain->mnuFilerDanMult);
        return Paper("Mult.txt");
    }
};

TEST_F(MultCheckFile, WithoutALogHasItsHeadingsAlone) {
    EXPECT_EQ(Sheet(), kMultTop);
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "Multiplier checksheet"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(MultCheckFile, StopsTheProgramIfItCannotBeCreated) {
    files.FailFrom("open", 1, Failure::PathFileAccess);
    Choose(frmMain->mnuFilerDanMult);
    EXPECT_EQ(dialogs.failures, std::vector<int>{75});
}

TEST_F(MultCheckFile, WithAHundredAndOneStopsTheProgram) {
    Lines log;
    for (int i = 0; i < 101; ++i) log.push_back(Contact({.mult = "DL"}));
    Log("15mCW", log);
    Choose(frmMain->mnuFilerDanMult);
    EXPECT_EQ(dialogs.failures, std::vector<int>{9});
    EXPECT_FALSE(ProgramRuns());
    EXPECT_EQ(Paper("Mult.txt"), kMultHead);
    EXPECT_FALSE(IsFree(1));
}

class SummaryFile : public PaperProgram {
protected:
    Lines Sheet() {
        Choose(frmMain->mnuEfterSummary);
        return Paper("Summary.txt");
    }
};

TEST_F(SummaryFile, TellsWhatIsSet) {
    desk().gsKlasse = "B";
    desk().gsTelefon = "87654321";
    for (std::size_t i = 0; i < 5; ++i) {
        desk().rigs[i] = "R" + std::string(kEquipmentBands[i]);
        desk().antennas[i] = "A" + std::string(kEquipmentBands[i]);
    }
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[2], "Kaldesignal: OZ1AB/P        Kategori: B   Antal logsider: ");
    EXPECT_EQ(sheet[9], "3,5 MHz CW       0           0 x      0 =        0" + std::string(49, ' ') + "R80/A80");
    EXPECT_EQ(sheet[17], " 28 MHz CW       0           0 x      0 =        0" + std::string(49, ' ') + "R10/A10");
    EXPECT_EQ(sheet[25], "Telefon (hvis der er spørgsmål): 87654321");
    EXPECT_THAT(Progress(), ElementsAre("Dan log", "Summary"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(SummaryFile, OfALogThatCannotBeReadCountsNoLogBehindIt) {
    Log("10mCW", Times(5, Contact({.operatorCall = "OZ9Z"})));
    Log("80mCW", {Contact({})});
    files.FailFrom("read", 3, Failure::DiskNotReady);
    const Lines sheet = Sheet();
    EXPECT_EQ(sheet[6], "Operatørernes kaldesignaler: OZ9Z");
    EXPECT_EQ(sheet[9], "3,5 MHz CW       0           0 x      0 =        0" + std::string(49, ' ') + "/");
    EXPECT_EQ(sheet[17], " 28 MHz CW       2           0 x      6 =        0" + std::string(49, ' ') + "/");
    EXPECT_FALSE(IsFree(1));
}

TEST_F(SummaryFile, NamesTheStationOfTheSocietysList) {
    files.files["DATA\\EDR.TXT"] = {"OZ1A   Afdeling Syd", "OZ1AB  Afdeling Nord, formand", "OZ1AB  Afdeling Vest"};
    IndlæsEDR();
    EXPECT_EQ(Sheet()[4], "Navn: Afdeling Nord, formand" + std::string(73 - 22, ' '));
    desk().gsMyCall = "OZ1AB";
    EXPECT_EQ(Sheet()[4], "Navn: ");
    desk().gsMyCall = "oz1ab/P";
    EXPECT_EQ(Sheet()[4], "Navn: ");
}

TEST_F(SummaryFile, StopsTheProgramIfItCannotBeCreated) {
    files.FailFrom("open", 11, Failure::PathNotFound);
    Choose(frmMain->mnuEfterSummary);
    EXPECT_EQ(dialogs.failures, std::vector<int>{76});
    EXPECT_FALSE(ProgramRuns());
}

TEST_F(SummaryFile, StopsTheProgramWhenAScoreOverflows) {
    // 4,700 multipliers times 465,300 points.
    Log("80mCW", Times(4700, Contact({.points = 99, .mult = "DL"})));
    Choose(frmMain->mnuEfterSummary);
    EXPECT_EQ(dialogs.failures, std::vector<int>{6});
    EXPECT_FALSE(HasPaper("Summary.txt"));
}

}  // namespace
}  // namespace vatro
