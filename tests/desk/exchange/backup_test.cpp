// SPDX-License-Identifier: MIT
#include "exchange/backup.h"
#include "frame/state.h"

#include "exchange/frmTilFloppy.h"
#include "frame/band_mode.h"
#include "running_program.h"

namespace vatro {
namespace {

using Lines = std::vector<std::string>;

const Lines kFiles{"Ukendt.txt",   "FD10mCW.txt", "FD10mSSB.txt", "FD15mCW.txt", "FD15mSSB.txt", "FD20mCW.txt",
                   "FD20mSSB.txt", "FD40mCW.txt", "FD40mSSB.txt", "FD80mCW.txt", "FD80mSSB.txt"};

class Backup : public RunningProgram {
protected:
    Backup() {
        settings.texts["SETTINGS/GSBACKUPLIB"] = "backup";
        files.files["LOG\\FD20MCW.TXT"] = {"twenty"};
        files.files["LOG\\FD80MSSB.TXT"] = {};
        Start();
        files.steps.clear();
    }
    static void Copy() {
        Dispatch([] { frmMain->mnuFilerBackupUdfor.Choose(); });
    }
    static void Floppy() {
        Dispatch([] { frmMain->mnuFilerDiskettekopi.Choose(); });
    }
    /// The target paths of all copies that were tried.
    Lines Copied() const {
        Lines copied;
        for (const std::string& step : files.steps)
            if (step.starts_with("copy ")) copied.push_back(step.substr(5));
        return copied;
    }
    static Lines Told() { return frmTilFloppy->copiedFiles.Items(); }
};

TEST_F(Backup, CopiesTheElevenFilesInTheirOrder) {
    for (const std::string& file : kFiles) files.files["LOG\\" + UpperText(file)] = {file};
    Copy();
    Lines told;
    Lines targets;
    for (const std::string& file : kFiles) {
        told.push_back(file + " kopieres...");
        targets.push_back("BACKUP\\" + UpperText(file));
        EXPECT_EQ(LinesOf("backup\\" + file), Lines{file});
    }
    EXPECT_EQ(Told(), told);
    EXPECT_EQ(Copied(), targets);
    EXPECT_EQ(frmTilFloppy->Caption(), "Backup af log");
    EXPECT_TRUE(frmTilFloppy.Loaded());
    EXPECT_FALSE(frmTilFloppy->Visible());
}

TEST_F(Backup, ReplacesAnOlderCopy) {
    files.files["BACKUP\\FD20MCW.TXT"] = {"old", "older"};
    Copy();
    EXPECT_EQ(LinesOf("backup\\FD20mCW.txt"), Lines{"twenty"});
}

TEST_F(Backup, PassesOverWhatIsNotThereWithoutAWord) {
    Copy();
    EXPECT_EQ(Told().size(), 11U);
    EXPECT_EQ(Copied(), (Lines{"BACKUP\\FD20MCW.TXT", "BACKUP\\FD80MSSB.TXT"}));
}

TEST_F(Backup, ASecondCopyBeginsWithAnEmptyWindow) {
    Copy();
    Copy();
    EXPECT_EQ(Told().size(), 11U);
}

TEST_F(Backup, WithoutADirectoryThereIsOnlyAMessage) {
    desk().gsBackupLib.clear();
    dialogs.Expect("Sæt backup bibliotek først.");
    Copy();
    EXPECT_EQ(Copied(), Lines{});
    EXPECT_FALSE(frmTilFloppy.Loaded());
}

TEST_F(Backup, StopsWhereTheDirectoryHasGone) {
    files.FailFrom("copy", 1, Failure::PathNotFound);
    dialogs.Expect("Destination ikke fundet.");
    Copy();
    // The first log that exists is also the last one that the program tries to copy.
    EXPECT_EQ(Told().back(), "FD20mCW.txt kopieres...");
    EXPECT_FALSE(frmTilFloppy->Visible());
}

TEST_F(Backup, SpeaksOfAFloppyWhereTheDirectoryIsNotReadyOrProtected) {
    files.FailFrom("copy", 1, Failure::DiskNotReady);
    dialogs.Expect("Indsæt diskette i drev A og foretag Diskettekopi igen.");
    Copy();
    EXPECT_EQ(Told().size(), 6U);
    files.FailFrom("copy", 1, Failure::PermissionDenied);
    dialogs.Expect("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen.");
    Copy();
    EXPECT_EQ(Told().size(), 6U);
}

TEST_F(Backup, ShowsAnyOtherNumberAndGoesOn) {
    files.FailFrom("copy", 1, Failure::DiskFull);
    dialogs.Expect("61");
    dialogs.Expect("61");
    Copy();
    EXPECT_EQ(Told().size(), 11U);
    EXPECT_EQ(dialogs.boxes.back().title, "");
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::None);
}

TEST_F(Backup, TheFloppyIsDriveA) {
    Floppy();
    EXPECT_EQ(LinesOf("a:\\FD20mCW.txt"), Lines{"twenty"});
    EXPECT_EQ(frmTilFloppy->Caption(), "Kopierer log til diskette");
    EXPECT_EQ(Told().size(), 11U);
    EXPECT_FALSE(frmTilFloppy->Visible());
}

TEST_F(Backup, TheFloppyNeedsNoBackupDirectory) {
    desk().gsBackupLib.clear();
    Floppy();
    EXPECT_EQ(Copied().size(), 2U);
}

TEST_F(Backup, AMachineWithoutAFloppyIsToldToUseTheBackup) {
    files.FailFrom("copy", 1, Failure::PathNotFound);
    dialogs.Expect("Diskettedrev ikke fundet. Brug backup funktion i stedet.");
    Floppy();
    EXPECT_EQ(Told().size(), 6U);
}

TEST_F(Backup, AMissingOrProtectedFloppyStopsTheCopy) {
    files.FailFrom("copy", 1, Failure::DiskNotReady);
    dialogs.Expect("Indsæt diskette i drev A og foretag Diskettekopi igen.");
    Floppy();
    files.FailFrom("copy", 1, Failure::PermissionDenied);
    dialogs.Expect("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen.");
    Floppy();
    EXPECT_EQ(Copied().size(), 2U);
}

TEST_F(Backup, AFileThatIsMissingLeavesStopAsItWas) {
    bool stop = true;
    TilBackup("Ukendt.txt", stop);
    EXPECT_TRUE(stop);
    TilBackup("FD20mCW.txt", stop);
    EXPECT_FALSE(stop);
}

// --- The directory

class BackupDirectory : public RunningProgram {
protected:
    BackupDirectory() { Start(); }
    void Choose(const std::string& file) {
        dialogs.chosen = file;
        Dispatch([] { frmMain->mnuFilerBackupSetBibliotek.Choose(); });
    }
};

TEST_F(BackupDirectory, IsThatOfTheMarkerFileWhichIsEmptied) {
    files.files["D:\\KOPI\\SETBACKUP.TXT"] = {"old"};
    dialogs.Expect("Backupbibliotek sat til: d:\\kopi\\");
    Choose("d:\\kopi\\setBackup.txt");
    EXPECT_EQ(desk().gsBackupLib, "d:\\kopi");
    EXPECT_EQ(LinesOf("d:\\kopi\\setBackup.txt"), Lines{});
    EXPECT_FALSE(files.IsOpen());
    const FileDialog& asked = dialogs.asked.back();
    EXPECT_EQ(ToUtf8(asked.title), "Vælg eller opret Backupbibliotek");
    EXPECT_EQ(asked.fileName, "setBackup.txt");
    EXPECT_TRUE(asked.markerFile);
    EXPECT_EQ(asked.filter, "setBackup.txt (*.txt)|*.txt");
    EXPECT_EQ(asked.defaultExtension, "txt");
    EXPECT_TRUE(asked.overwritePrompt);
}

TEST_F(BackupDirectory, MustNotBeTheLogDirectory) {
    desk().gsBackupLib = "d:\\kopi";
    dialogs.Expect("Backupbibliotek må ikke være det samme som logbiblioteket.\r\nBiblioteket er sættes til: Ikke angivet.");
    Choose("log\\setBackup.txt");
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::Information);
    EXPECT_EQ(desk().gsBackupLib, "");
    EXPECT_FALSE(files.files.contains("LOG\\SETBACKUP.TXT"));
}

TEST_F(BackupDirectory, IsComparedExactly) {
    dialogs.Expect("Backupbibliotek sat til: LOG\\");
    Choose("LOG\\setBackup.txt");
    EXPECT_EQ(desk().gsBackupLib, "LOG");
}

TEST_F(BackupDirectory, StaysOnCancel) {
    dialogs.Expect("Backupbibliotek er ikke angivet. ");
    Dispatch([] { frmMain->mnuFilerBackupSetBibliotek.Choose(); });
    desk().gsBackupLib = "d:\\kopi";
    dialogs.Expect("Backupbibliotek er beholdt som: d:\\kopi\\");
    Dispatch([] { frmMain->mnuFilerBackupSetBibliotek.Choose(); });
    EXPECT_EQ(desk().gsBackupLib, "d:\\kopi");
}

TEST_F(BackupDirectory, ThatCannotBeWrittenToIsKeptAllTheSame) {
    desk().gsBackupLib = "d:\\kopi";
    files.FailFrom("open", 1, Failure::PermissionDenied);
    dialogs.Expect("Backupbibliotek er beholdt som: e:\\ny\\");
    Choose("e:\\ny\\setBackup.txt");
    EXPECT_EQ(desk().gsBackupLib, "e:\\ny");
}

TEST_F(BackupDirectory, InTheRootOfADriveHasNoFinalBackslash) {
    dialogs.Expect("Backupbibliotek sat til: e:\\");
    Choose("e:\\setBackup.txt");
    EXPECT_EQ(desk().gsBackupLib, "e:");
}

TEST_F(BackupDirectory, ReachesTheSettingsAtARegularEnd) {
    dialogs.Expect("Backupbibliotek sat til: d:\\kopi\\");
    Choose("d:\\kopi\\setBackup.txt");
    EXPECT_FALSE(settings.texts.contains("SETTINGS/GSBACKUPLIB"));
    Dispatch([] { frmMain->Unload(); });
    EXPECT_EQ(settings.texts["SETTINGS/GSBACKUPLIB"], "d:\\kopi");
}

}  // namespace
}  // namespace vatro
