// SPDX-License-Identifier: MIT
#include "exchange/ct_import.h"
#include "frame/state.h"

#include "columns.h"
#include "country/lookup.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/duplicates.h"
#include "running_program.h"
#include "score/stations.h"

namespace vatro {
namespace {

using namespace literals;
using Lines = std::vector<std::string>;

/// A contact line of CT has the date in columns 5-13, time 17-20, number sent 23-26, call 36-47, report 49-51, number received
/// 53-56.
std::string Contact(const std::string& date, const std::string& time, const std::string& sent, const std::string& call,
                    const std::string& report, const std::string& received) {
    return "    " + LeftAligned(date, 12) + LeftAligned(time, 6) + LeftAligned(sent, 13) + LeftAligned(call, 13) + LeftAligned(report, 4) +
           received;
}

class CtImport : public RunningProgram {
protected:
    static constexpr const char* kFile = "CT\\FELT.40";
    /// A CT log of this mode with these lines after its head. The third line of the head has the mode in columns 44-46.
    void Log(const std::string& mode, const Lines& lines, const std::string& file = kFile) {
        Lines& all = files.files[UpperText(file)];
        all = {"CONTEST LOG", "", std::string(43, ' ') + mode};
        all.insert(all.end(), lines.begin(), lines.end());
    }
    static void Import(const std::string& file = kFile) {
        Dispatch([&] { ImporterCt(file); });
    }
};

TEST_F(CtImport, AContactBecomesALineOfTheLog) {
    Log("CW ", {Contact("07-Sep-02", "1207", "0012", "DL9XYZ", "599", "0345")});
    // The country was worked before, so the line has no multiplier.
    files.files["CT\\FELT.40"].insert(files.files["CT\\FELT.40"].begin() + 3,
                                      Contact("07-Sep-02", "1200", "0011", "DL1ABC", "579", "0001"));
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), (Lines{"12:00 DL1ABC          599-0011 579-0001  3 DL         CT-IMP     CW    07-09-02",
                                                  "12:07 DL9XYZ          599-0012 599-0345  3            CT-IMP     CW    07-09-02"}));
    EXPECT_EQ(frmMain->log.Items(), files.files["LOG\\FD40MCW.TXT"]);
    EXPECT_EQ(frmMain->log.ListIndex(), 1);
}

TEST_F(CtImport, AnSsbLogKeepsItsColumns) {
    Log("SSB",
        {Contact("07-Sep-02", "1207", "0012", "DL9XYZ", "59 ", "0345"), Contact("07-Sep-02", "1208", "0013", "OZ1ABC", " 57", "0007")});
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD40mSSB.txt"), (Lines{"12:07 DL9XYZ          59 -0012 59 -0345  3 DL         CT-IMP     SSB   07-09-02",
                                                   "12:08 OZ1ABC          59 -0013 57 -0007 10 OZ         CT-IMP     SSB   07-09-02"}));
}

TEST_F(CtImport, TheSystemIsOnTheImportedLogAfterwards) {
    Log("CW ",
        {Contact("07-Sep-02", "1200", "0011", "DL1ABC", "599", "0001"), Contact("07-Sep-02", "1207", "0012", "OZ2DEF", "599", "0345")});
    Start();
    Import();
    EXPECT_EQ(desk().gsBand, "40m");
    EXPECT_EQ(desk().gsMode, "CW");
    EXPECT_EQ(desk().gsQsoMode, "CW");
    const StatusBar& bar = frmMain->statusBar;
    EXPECT_EQ(bar.Panel(1), "Vatro 40m CW");
    // 3 points and 1 point, and two countries.
    EXPECT_EQ(bar.Panel(2), "4");
    EXPECT_EQ(bar.Panel(4), "2");
    EXPECT_EQ(bar.Panel(6), "8");
    // ResetQSO has counted on from the number of the last line.
    EXPECT_EQ(desk().log.giQSOnr, 13);
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0013");
    EXPECT_EQ(frmMain->fields[kReportSentField].Text(), "599");
    EXPECT_FALSE(files.IsOpen());
    for (const Toolbar::ToolButton& button : frmMain->toolbar.ToolButtons())
        EXPECT_EQ(button.pressed, button.index == 4 || button.index == 9) << button.index;
}

TEST_F(CtImport, TheLogBeforeStaysAsItWas) {
    const std::string line = "12:00 DL1ABC          59 -0001 59 -0001  3 DL         OZ1DEF     SSB   05-09-26";
    files.files["LOG\\FD80MSSB.TXT"] = {line};
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001")});
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), Lines{line});
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().giMult, 1);
}

TEST_F(CtImport, OnlyLinesWithADashInColumnSevenAreContacts) {
    Log("CW ",
        {"", "Claimed score - 345", "123456", "123456 -8", Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001"), "TOTAL  12"});
    Start();
    Import();
    EXPECT_EQ(frmMain->log.ListCount(), 1);
}

TEST_F(CtImport, ACallTwiceIsADuplicateThoughPortable) {
    Log("CW ",
        {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001"), Contact("07-Sep-02", "1201", "0002", "DL1ABC/P", "599", "0002")});
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt").back(), "12:01 DL1ABC/P        599-0002 599-0002  0 -DUPE-     CT-IMP     CW    07-09-02");
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().giMult, 1);
}

TEST_F(CtImport, AnUnknownPrefixHasNoPointsAndIsNotRecorded) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "QQ1ABC", "599", "0001")});
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), Lines{"12:00 QQ1ABC          599-0001 599-0001  0            CT-IMP     CW    07-09-02"});
    EXPECT_FALSE(files.files.contains("LOG\\UKENDT.TXT"));
}

TEST_F(CtImport, ACountryOutsideEuropeCountsSixAndADanishStationOne) {
    files.files["DATA\\LANDE.TXT"].emplace_back("W         United States            NA +5 ");
    files.files["DATA\\REFPFX.TXT"].emplace_back("W         W         5  8 ");
    Log("CW ",
        {Contact("07-Sep-02", "1200", "0001", "W1AW", "599", "0001"), Contact("07-Sep-02", "1201", "0002", "OZ7XYZ", "599", "0002")});
    Start();
    Import();
    EXPECT_EQ(desk().log.glPoint, 7);
}

TEST_F(CtImport, TheSocietysStationsAreKnownByTheFirstSixCharacters) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "OZ1ABC/P", "599", "0001")});
    Start();
    Import();
    EXPECT_TRUE(desk().stations.EDRstn[1].Wkd);
    EXPECT_EQ(desk().log.glPoint, 10);
}

TEST_F(CtImport, NumbersThatAreNoneBecomeNought) {
    Log("CW ", {Contact("07-Sep-02", "1200", "12", "DL1ABC", "599", "XYZ"), Contact("07-Sep-02", "1201", "ABCD", "DL2ABC", "599", "34")});
    Start();
    Import();
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), (Lines{"12:00 DL1ABC          599-0012 599-0000  3 DL         CT-IMP     CW    07-09-02",
                                                  "12:01 DL2ABC          599-0000 599-0034  3            CT-IMP     CW    07-09-02"}));
    EXPECT_EQ(desk().log.giQSOnr, 1);
}

TEST_F(CtImport, ReportsThatAreMissingOrTooLongMoveNoColumn) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "", "0001"), Contact("07-Sep-02", "1201", "0002", "DL2ABC", "59", "0002")});
    Log("SSB", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001"), Contact("07-Sep-02", "1201", "0002", "DL2ABC", "", "0002")},
        "CT\\FELT.20");
    Start();
    Import();
    Import("CT\\FELT.20");
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), (Lines{"12:00 DL1ABC          599-0001    -0001  3 DL         CT-IMP     CW    07-09-02",
                                                  "12:01 DL2ABC          599-0002 59 -0002  3            CT-IMP     CW    07-09-02"}));
    EXPECT_EQ(LinesOf("log\\FD20mSSB.txt"), (Lines{"12:00 DL1ABC          59 -0001 59 -0001  3 DL         CT-IMP     SSB   07-09-02",
                                                   "12:01 DL2ABC          59 -0002    -0002  3            CT-IMP     SSB   07-09-02"}));
}

TEST_F(CtImport, DatesHaveMonthsInWordsOfBothLanguagesAndTwoFiguresOfTheYear) {
    Log("CW ",
        {Contact("01-Oct-49", "1200", "0001", "DL1ABC", "599", "0001"), Contact("02-okt-50", "1200", "0002", "DL2ABC", "599", "0001"),
         Contact("03-MAJ-99", "1200", "0003", "DL3ABC", "599", "0001"), Contact(" 4-05-02", "1200", "0004", "DL4ABC", "599", "0001")});
    Start();
    Import();
    Lines dates;
    for (const std::string& line : LinesOf("log\\FD40mCW.txt")) dates.push_back(line.substr(71));
    EXPECT_EQ(dates, (Lines{"01-10-49", "02-10-50", "03-05-99", "04-05-02"}));
}

TEST_F(CtImport, ADateThatIsNoneStopsTheProgramWithTheLinesBeforeItLogged) {
    Log("CW ",
        {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001"), Contact("31-Sep-02", "1201", "0002", "DL2ABC", "599", "0001"),
         Contact("07-Sep-02", "1202", "0003", "DL3ABC", "599", "0001")});
    Start();
    Import();
    EXPECT_EQ(dialogs.failures, std::vector<int>{13});
    EXPECT_FALSE(ProgramRuns());
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), Lines{"12:00 DL1ABC          599-0001 599-0001  3 DL         CT-IMP     CW    07-09-02"});
}

TEST_F(CtImport, ALineWithoutACallIsLoggedWithoutLookingItUp) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "", "599", "0001")});
    Start();
    Import();
    EXPECT_TRUE(dialogs.failures.empty());
    const auto log = files.files.find("LOG\\FD40MCW.TXT");
    ASSERT_NE(log, files.files.end());
    EXPECT_EQ(log->second, std::vector<std::string>{"12:00                 599-0001 599-0001  3            CT-IMP     CW    07-09-02"});
}

TEST_F(CtImport, AnExistingLogIsRefusedAndNothingChanges) {
    files.files["LOG\\FD40MCW.TXT"] = {"a"};
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001")});
    Start();
    dialogs.Expect("Log for 40m CW findes allerede.");
    Import();
    EXPECT_EQ(dialogs.boxes.back().title, "Log kan ikke importeres.");
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::None);
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt"), Lines{"a"});
    EXPECT_EQ(desk().gsBand, "80m");
    EXPECT_EQ(desk().gsMode, "SSB");
    // The CT file stays open after a refused import.
    EXPECT_TRUE(files.IsOpen());
}

TEST_F(CtImport, TheImportAfterARefusedOneGoesOnWithTheFirstFileInALogWithoutBand) {
    files.files["LOG\\FD40MCW.TXT"] = {"a"};
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001")});
    Log("SSB", {Contact("07-Sep-02", "1300", "0001", "OZ2DEF", "59 ", "0001")}, "CT\\FELT.20");
    Start();
    dialogs.Expect("Log for 40m CW findes allerede.");
    Import();
    Import("CT\\FELT.20");
    EXPECT_EQ(desk().gsBand, "");
    EXPECT_EQ(desk().gsMode, "CW");
    EXPECT_EQ(desk().gsQsoMode, "");
    EXPECT_EQ(frmMain->statusBar.Panel(1), "Vatro  CW");
    EXPECT_EQ(LinesOf("log\\FDCW.txt"), Lines{"12:00 DL1ABC          599-0001 599-0001  3 DL         CT-IMP     CW    07-09-02"});
    EXPECT_FALSE(files.files.contains("LOG\\FD20MSSB.TXT"));
    EXPECT_FALSE(files.IsOpen());
    // A third import reads its own file again.
    Import("CT\\FELT.20");
    EXPECT_EQ(LinesOf("log\\FD20mSSB.txt").size(), 1U);
}

TEST_F(CtImport, AFileOfFewerThanThreeLinesIsToldToBeEmpty) {
    files.files["CT\\FELT.40"] = {"CONTEST LOG", std::string(43, ' ') + "SSB"};
    Start();
    dialogs.Expect("ct\\felt.40 er tom.");
    Import("ct\\felt.40");
    EXPECT_EQ(dialogs.boxes.back().title, "Import af CT-fil");
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::Information);
    EXPECT_EQ(desk().gsBand, "");
    EXPECT_EQ(desk().gsMode, "CW");
    EXPECT_EQ(desk().gsQsoMode, "");
    EXPECT_EQ(frmMain->log.ListCount(), 0);
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(CtImport, AFileOfThreeLinesIsToldToBeEmptyOnItsOwnBand) {
    Log("SSB", {});
    Start();
    dialogs.Expect("CT\\FELT.40 er tom.");
    Import();
    EXPECT_EQ(desk().gsBand, "40m");
    EXPECT_EQ(desk().gsMode, "SSB");
    EXPECT_FALSE(files.files.contains("LOG\\FD40MSSB.TXT"));
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0001");
}

TEST_F(CtImport, AFileThatCannotBeOpenedStopsTheProgram) {
    Start();
    // Testing for the end of the file fails because no file is open under the number.
    Import("CT\\NONE.40");
    EXPECT_EQ(dialogs.failures, std::vector<int>{52});
}

TEST_F(CtImport, AnotherModeIsSoughtUnderItsNameAndLoggedAsCw) {
    files.files["LOG\\FD40MCW.TXT"] = {"12:00 DL1ABC          599-0001 599-0001  3 DL         OZ1DEF     CW    05-09-26"};
    Log("FM ", {Contact("07-Sep-02", "1200", "0001", "DL2ABC", "599", "0001")});
    Start();
    Import();
    EXPECT_EQ(desk().gsMode, "CW");
    EXPECT_EQ(desk().gsQsoMode, "FM");
    // The contact is added to the existing log.
    EXPECT_EQ(LinesOf("log\\FD40mCW.txt").size(), 2U);
    EXPECT_EQ(frmMain->log.ListCount(), 1);
}

TEST_F(CtImport, AFileWithoutABandInItsNameHasALogOfSuchABand) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL2ABC", "599", "0001")}, "CT\\FELT.LOG");
    Start();
    Import("CT\\FELT.log");
    EXPECT_EQ(desk().gsBand, "ogm");
    EXPECT_TRUE(files.files.contains("LOG\\FDOGMCW.TXT"));
}

TEST_F(CtImport, AFailedAppendEndsTheProgram) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001")});
    Start();
    files.FailFrom("write", 1, Failure::DiskFull);
    dialogs.Expect(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen.");
    Import();
    EXPECT_FALSE(ProgramRuns());
}

TEST_F(CtImport, TheMenuAsksForAnExistingFileOfTheFiveBands) {
    Log("CW ", {Contact("07-Sep-02", "1200", "0001", "DL1ABC", "599", "0001")});
    Start();
    Dispatch([] { frmMain->mnuFunktionerImporterCtAll.Choose(); });
    EXPECT_EQ(desk().gsBand, "80m");
    dialogs.chosen = "CT\\FELT.40";
    Dispatch([] { frmMain->mnuFunktionerImporterCtAll.Choose(); });
    EXPECT_EQ(desk().gsBand, "40m");
    ASSERT_EQ(dialogs.asked.size(), 2U);
    EXPECT_TRUE(dialogs.asked[0].fileMustExist);
    EXPECT_EQ(dialogs.asked[0].filter, "CT-logfil (*.10;*.15;*.20;*.40;*.80)|*.10;*.15;*.20;*.40;*.80|");
}

}  // namespace
}  // namespace vatro
