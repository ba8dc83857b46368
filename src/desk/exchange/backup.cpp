// SPDX-License-Identifier: MIT
#include "exchange/backup.h"
#include "frame/state.h"

#include "codepage.h"
#include "exchange/frmTilFloppy.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

const std::string kDrive = "a:";

void Stands(std::string_view message, bool& stop) {
    MsgBox(message);
    stop = true;
}

void CopyFile(const std::string& file, const std::string& directory, std::string_view missing, bool& stop) {
    try {
        frmTilFloppy->copiedFiles.AddItem(file + " kopieres...");
        frmTilFloppy->Refresh();
        platform().files.Copy(PathIn(desk().gsLogLib, file), PathIn(directory, file));
        stop = false;
    } catch (const RunTimeError& error) {
        switch (error.Which()) {
            case Failure::FileNotFound:
                // The file does not exist: a log of a band that nobody has worked.
                break;
            case Failure::PathNotFound:
                Stands(missing, stop);
                break;
            case Failure::DiskNotReady:
                Stands("Indsæt diskette i drev A og foretag Diskettekopi igen."_t, stop);
                break;
            case Failure::PermissionDenied:
                // The message speaks of a floppy even if the target is a directory. Keep it: operators know the messages, and the
                // handbook quotes them (docs/rules.md).
                Stands("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen."_t, stop);
                break;
            default:
                MsgBox(PlainNumber(error.Number()));
        }
    }
}

void CopyAll(std::string_view title, void (*copyOne)(const std::string& file, bool& stop)) {
    frmTilFloppy->SetCaption(title);
    frmTilFloppy->Show();
    frmTilFloppy->copiedFiles.Clear();
    bool stop = false;
    copyOne("Ukendt.txt", stop);
    for (const LogId& log : kTenLogs)
        if (!stop) copyOne(LogName(log.band, log.mode), stop);
    frmTilFloppy->Hide();
}

}  // namespace

void SetBackupLib() {
    Files& files = platform().files;
    try {
        const std::string file = ChooseMarkerFile("setBackup.txt", "Vælg eller opret Backupbibliotek"_t);
        desk().gsBackupLib = DirectoryOf(file);
        if (desk().gsBackupLib != desk().gsLogLib) {
            files.Open(1, file, FileMode::Output);
            files.Close(1);
            MsgBox("Backupbibliotek sat til: " + desk().gsBackupLib + files.Separator());
            return;
        }
        MessageBox same;
        same.text = "Backupbibliotek må ikke være det samme som logbiblioteket.\r\nBiblioteket er sættes til: Ikke angivet."_t;
        same.icon = Icon::Information;
        MsgBox(same);
        desk().gsBackupLib.clear();
    } catch (const RunTimeError&) {
        if (desk().gsBackupLib.empty())
            MsgBox("Backupbibliotek er ikke angivet. ");
        else
            MsgBox("Backupbibliotek er beholdt som: " + desk().gsBackupLib + files.Separator());
    }
}

void BackUpLogs() {
    if (desk().gsBackupLib.empty()) {
        MsgBox("Sæt backup bibliotek først."_t);
        return;
    }
    CopyAll("Backup af log", TilBackup);
}

void CopyToDiskette() {
    CopyAll("Kopierer log til diskette", TilFloppy);
}

void TilBackup(const std::string& file, bool& stop) {
    CopyFile(file, desk().gsBackupLib, "Destination ikke fundet.", stop);
}

void TilFloppy(const std::string& file, bool& stop) {
    CopyFile(file, kDrive, "Diskettedrev ikke fundet. Brug backup funktion i stedet.", stop);
}

}  // namespace vatro
