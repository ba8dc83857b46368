// SPDX-License-Identifier: MIT
#include "exchange/backup.h"

#include "codepage.h"
#include "exchange/frmTilFloppy.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

std::string gsBackupLib;

namespace {

const std::string kDrev = "a:";

void Stands(std::string_view besked, bool& stop) {
    MsgBox(besked);
    stop = true;
}

void Kopier(const std::string& fil, const std::string& bibliotek, std::string_view mangler, bool& stop) {
    try {
        frmTilFloppy->List1.AddItem(fil + " kopieres...");
        frmTilFloppy->Refresh();
        platform().files.Copy(Sti(gsLogLib, fil), Sti(bibliotek, fil));
        stop = false;
    } catch (const RunTimeError& fejl) {
        switch (fejl.Which()) {
            case Failure::FileNotFound:
                // A log of a band that nobody has worked.
                break;
            case Failure::PathNotFound:
                Stands(mangler, stop);
                break;
            case Failure::DiskNotReady:
                Stands("Indsæt diskette i drev A og foretag Diskettekopi igen."_t, stop);
                break;
            case Failure::PermissionDenied:
                // Of a floppy, also where the target is a directory: meant so.
                Stands("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen."_t, stop);
                break;
            default:
                MsgBox(PlainNumber(fejl.Number()));
        }
    }
}

void KopierAlle(std::string_view titel, void (*kopier)(const std::string& fil, bool& stop)) {
    frmTilFloppy->SetCaption(titel);
    frmTilFloppy->Show();
    frmTilFloppy->List1.Clear();
    bool stop = false;
    kopier("Ukendt.txt", stop);
    for (const BåndMode& log : kTiLogge)
        if (!stop) kopier(LogNavn(log.bånd, log.mode), stop);
    frmTilFloppy->Hide();
}

}  // namespace

void SetBackupLib() {
    Files& filer = platform().files;
    try {
        const std::string fil = VælgMærkefil("setBackup.txt", "Vælg eller opret Backupbibliotek"_t);
        gsBackupLib = BibliotekAf(fil);
        if (gsBackupLib != gsLogLib) {
            filer.Open(1, fil, FileMode::Output);
            filer.Close(1);
            MsgBox("Backupbibliotek sat til: " + gsBackupLib + filer.Separator());
            return;
        }
        MessageBox samme;
        samme.text = "Backupbibliotek må ikke være det samme som logbiblioteket.\r\nBiblioteket er sættes til: Ikke angivet."_t;
        samme.icon = Icon::Information;
        MsgBox(samme);
        gsBackupLib.clear();
    } catch (const RunTimeError&) {
        if (gsBackupLib.empty())
            MsgBox("Backupbibliotek er ikke angivet. ");
        else
            MsgBox("Backupbibliotek er beholdt som: " + gsBackupLib + filer.Separator());
    }
}

void BackupUdfør() {
    if (gsBackupLib.empty()) {
        MsgBox("Sæt backup bibliotek først."_t);
        return;
    }
    KopierAlle("Backup af log", TilBackup);
}

void Diskettekopi() {
    KopierAlle("Kopierer log til diskette", TilFloppy);
}

void TilBackup(const std::string& fil, bool& stop) {
    Kopier(fil, gsBackupLib, "Destination ikke fundet.", stop);
}

void TilFloppy(const std::string& fil, bool& stop) {
    Kopier(fil, kDrev, "Diskettedrev ikke fundet. Brug backup funktion i stedet.", stop);
}

}  // namespace vatro
