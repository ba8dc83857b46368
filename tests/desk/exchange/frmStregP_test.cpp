// SPDX-License-Identifier: MIT
#include "exchange/frmStregP.h"

#include "columns.h"
#include "running_program.h"

namespace vatro {
namespace {

using Lines = std::vector<std::string>;

class PortableCalls : public RunningProgram {
protected:
    /// Logs a contact with this call and serial number.
    void Worked(const std::string& log, const std::string& call, const std::string& number) {
        files.files["LOG\\" + UpperText(log) + ".TXT"].push_back("13:00 " + LeftAligned(call, 15) + " 59 -" + number +
                                                                 " 59 -0001  3            OZ1DEF     SSB   05-09-26");
    }
    void Open() {
        if (!ProgramRuns()) Start();
        Dispatch([] { frmMain->mnuFunktionerStregP.Choose(); });
    }
    static Lines Items() { return frmStregP->contacts.Items(); }
};

TEST_F(PortableCalls, ShowsACallOfTwoSpellings) {
    Worked("FD40mSSB", "DL1ABC/P", "0123");
    Worked("FD80mCW", "DL1ABC", "0007");
    Open();
    EXPECT_EQ(Items(), (Lines{"DL1ABC         ------------", "DL1ABC         40m SSB 0123 DL1ABC/P       ",
                              "DL1ABC         80m CW  0007 DL1ABC         "}));
}

TEST_F(PortableCalls, LeavesOutACallOfOneSpelling) {
    Worked("FD40mSSB", "OZ1ABC/P", "0001");
    Worked("FD80mSSB", "OZ1ABC/P", "0002");
    Open();
    EXPECT_EQ(Items(), Lines{});
}

TEST_F(PortableCalls, LeavesOutOneLineGroupsBehindTheFirst) {
    Worked("FD40mSSB", "DL1ABC", "0001");
    Worked("FD40mSSB", "DL1ABC/P", "0002");
    Worked("FD40mSSB", "OZ2DEF", "0003");
    Worked("FD40mSSB", "OZ3DEF", "0004");
    Open();
    EXPECT_EQ(Items(), (Lines{"DL1ABC         ------------", "DL1ABC         40m SSB 0001 DL1ABC         ",
                              "DL1ABC         40m SSB 0002 DL1ABC/P       "}));
}

TEST_F(PortableCalls, NeverLooksAtTheFirstItem) {
    // The first item is the only one of its call, and no dashes follow it; dashes follow each later group.
    Worked("FD40mSSB", "DL1ABC", "0001");
    Worked("FD40mSSB", "OZ2DEF", "0002");
    Worked("FD80mSSB", "OZ2DEF", "0003");
    Worked("FD80mSSB", "OZ3DEF", "0004");
    Open();
    // Items: 0 DL1ABC, 1 dashes, 2 and 3 OZ2DEF, 4 dashes, 5 OZ3DEF. Both later groups are removed.
    EXPECT_EQ(Items(), Lines{"DL1ABC         40m SSB 0001 DL1ABC         "});
}

TEST_F(PortableCalls, KeepsTheOnlyContactOnView) {
    Worked("FD10mCW", "OZ1ABC", "0001");
    Open();
    EXPECT_EQ(Items(), (Lines{"OZ1ABC         ------------", "OZ1ABC         10m CW  0001 OZ1ABC         "}));
}

TEST_F(PortableCalls, WithoutLogsHasDashesAlone) {
    Open();
    EXPECT_EQ(Items(), Lines{"------------"});
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(PortableCalls, KnowsThePrefixAndTheFigureOfAnotherCountryAsSpellings) {
    Worked("FD40mSSB", "SV9/OZ1ABC", "0001");
    Worked("FD80mSSB", "OZ1ABC", "0002");
    Worked("FD40mSSB", "OZ2DEF/3", "0003");
    Worked("FD80mSSB", "OZ2DEF", "0004");
    Open();
    EXPECT_EQ(Items(), (Lines{"OZ1ABC         ------------", "OZ1ABC         40m SSB 0001 SV9/OZ1ABC     ",
                              "OZ1ABC         80m SSB 0002 OZ1ABC         ", "OZ2DEF         ------------",
                              "OZ2DEF         40m SSB 0003 OZ2DEF/3       ", "OZ2DEF         80m SSB 0004 OZ2DEF         "}));
}

TEST_F(PortableCalls, PassesOverNotesAndTakesDuplicates) {
    files.files["LOG\\FD40MSSB.TXT"] = {"NOTE: OZ1ABC/P er paa vej", "note: OZ1ABC/P igen",
                                        "13:00 OZ1ABC          59 -0001 59 -0001  0 -DUPE-     OZ1DEF     SSB   05-09-26"};
    Worked("FD80mSSB", "OZ1ABC/P", "0002");
    Open();
    EXPECT_EQ(Items(), (Lines{"OZ1ABC         ------------", "OZ1ABC         40m SSB 0001 OZ1ABC         ",
                              "OZ1ABC         80m SSB 0002 OZ1ABC/P       "}));
}

TEST_F(PortableCalls, ReadsAllTenLogs) {
    const Lines logs{"FD10mCW", "FD10mSSB", "FD15mCW", "FD15mSSB", "FD20mCW", "FD20mSSB", "FD40mCW", "FD40mSSB", "FD80mCW", "FD80mSSB"};
    for (const std::string& log : logs) Worked(log, log == "FD80mSSB" ? "OZ1ABC/P" : "OZ1ABC", "0001");
    Open();
    ASSERT_EQ(Items().size(), 11U);
    EXPECT_EQ(Items()[1], "OZ1ABC         10m CW  0001 OZ1ABC         ");
    EXPECT_EQ(Items()[10], "OZ1ABC         80m SSB 0001 OZ1ABC/P       ");
}

TEST_F(PortableCalls, ShortLinesMoveNoColumn) {
    files.files["LOG\\FD40MSSB.TXT"] = {"13:00 OZ1ABC", "", "x"};
    Worked("FD80mSSB", "OZ1ABC/P", "0002");
    Open();
    // Two lines without a call form a group with a single spelling.
    EXPECT_EQ(Items(), (Lines{"OZ1ABC         ------------", "OZ1ABC         40m SSB      OZ1ABC         ",
                              "OZ1ABC         80m SSB 0002 OZ1ABC/P       "}));
}

TEST_F(PortableCalls, ALogThatBreaksOffIsShownAsFarAsItWasRead) {
    Worked("FD10mCW", "OZ1ABC", "0001");
    Worked("FD10mCW", "OZ1ABC/P", "0002");
    Worked("FD10mCW", "OZ1ABC/M", "0003");
    Start();
    files.FailFrom("read", 3, Failure::DiskNotReady);
    Open();
    EXPECT_EQ(Items().size(), 3U);
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(PortableCalls, OpenedAgainKeepsWhatItShows) {
    Worked("FD10mCW", "OZ1ABC", "0001");
    Open();
    const Lines before = Items();
    Worked("FD10mCW", "OZ1ABC/P", "0002");
    Open();
    EXPECT_EQ(Items(), before);
    EXPECT_EQ(ActiveForm(), &*frmStregP);
    Dispatch([] { frmStregP->UserClosed(); });
    EXPECT_FALSE(frmStregP.Loaded());
    Open();
    EXPECT_EQ(Items().size(), 3U);
}

TEST_F(PortableCalls, HasItsPlaceInTheSettings) {
    Open();
    EXPECT_EQ(frmStregP->Caption(), "Mangler nogle calls '/P'?");
    EXPECT_EQ(frmStregP->Left(), 2000);
    EXPECT_EQ(frmStregP->Top(), 2000);
    EXPECT_EQ(frmStregP->Width(), 6000);
    EXPECT_EQ(frmStregP->Height(), 6000);
    Dispatch([] {
        frmStregP->UserPlaced(1500, 1200, 7500, 4500);
        frmStregP->UserClosed();
    });
    EXPECT_EQ(settings.texts["SETTINGS/STREGPLEFT"], "1500");
    EXPECT_EQ(settings.texts["SETTINGS/STREGPTOP"], "1200");
    EXPECT_EQ(settings.texts["SETTINGS/STREGPWIDTH"], "7500");
    EXPECT_EQ(settings.texts["SETTINGS/STREGPHEIGHT"], "4500");
    Open();
    Dispatch([] {
        frmStregP->UserPlaced(0, 0, 3000, 3000);
        frmStregP->UserState(WindowState::Minimised);
        frmStregP->UserClosed();
    });
    EXPECT_EQ(settings.texts["SETTINGS/STREGPWIDTH"], "7500");
}

TEST_F(PortableCalls, ChangesNoLogAndNoCounter) {
    Worked("FD80mSSB", "OZ1ABC", "0001");
    Worked("FD80mSSB", "OZ1ABC/P", "0002");
    const auto before = files.files;
    Open();
    EXPECT_EQ(files.files, before);
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0003");
}

}  // namespace
}  // namespace vatro
