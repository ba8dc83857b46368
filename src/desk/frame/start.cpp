// SPDX-License-Identifier: MIT
#include "frame/start.h"

#include <exception>
#include <functional>
#include <vector>

#include "codepage.h"
#include "country/tables.h"
#include "entry/frmMain.h"
#include "entry/operators.h"
#include "exchange/backup.h"
#include "exchange/equipment.h"
#include "frame/band_mode.h"
#include "frame/frmSplash.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "keyer/keyer_settings.h"
#include "keyer/keyer_state.h"
#include "numbers.h"
#include "page.h"
#include "platform.h"
#include "program.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

namespace {

void LæsIndstillinger() {
    gsUTC = HentTekst(kSettings, "UTC", "-2");
    gsMyCall = HentTekst(kSettings, "MyCall");
    gsFDLib = HentTekst(kSettings, "gsFDLib");
    gsKlasse = HentTekst(kSettings, "gsKlasse", "A");
    gsTelefon = HentTekst(kSettings, "gsTelefon", "12345678");
    gsOperatør = HentTekst(kSettings, "LastOP");
    gbVisInfo = HentFlag(kSettings, "VisInfo2002", true);
}

/// As far as it can be done.
void Try(const std::function<void()>& step) noexcept {
    try {
        step();
    } catch (const std::exception&) {
        // Nobody is left who could be told.
    }
}

}  // namespace

std::string VersionTekst() {
    const Version& version = platform().version;
    return PlainNumber(version.major) + "." + PlainNumber(version.minor) + "." + PlainNumber(version.revision);
}

void NulstilAlt() {
    NulstilStation();
    NulstilBåndMode();
    NulstilLog();
    NulstilTabeller();
    NulstilEDR();
    NulstilOperatør();
    ResetKeyerState();
    gsBackupLib.clear();
    gbAutoTid = 0;
    gbVisLand = false;
}

void VisKørerAllerede() {
    MessageBox afvist;
    afvist.text = "Der må kun køre een udgave ellers går der kuk i loggen!"_t;
    afvist.title = "Vatro kører allerede."_t;
    MsgBox(afvist);
}

void StoreRunningProgram() noexcept {
    auto* main = static_cast<FrmMain*>(frmMain.Peek());
    if (main == nullptr || !main->Up()) return;
    const SettingsBatch together(platform().settings);
    // Not while another handler has its file open.
    Try([main] { GemOperatører(main->Combo1); });
    const std::vector<Form*>& forms = LoadedForms();
    for (auto form = forms.rbegin(); form != forms.rend(); ++form)
        if (*form != main) Try([form] { (*form)->StoreState(); });
    Try([main] { main->StoreState(); });
}

void StartProgram() {
    NulstilAlt();
    platform().printer.Abandon();
    LæsIndstillinger();
    HentCWIndstillinger();
    HentUdstyr();

    // Before any table is loaded: two copies would write the same log.
    if (platform().instance.AnotherCopyRuns()) {
        VisKørerAllerede();
        EndProgram();
    }

    frmSplash->Show();
    frmSplash->Refresh();

    if (gsFDLib.empty()) {
        gsFDLib = platform().files.CurrentDirectory();
        // Another key than the one read above, which gets the value at a regular end: both are meant.
        GemTekst(kSettings, "FDLib", gsFDLib);
    }

    frmSplash->Vis("Indlæser Lande"_t);
    IndlæsLande();
    frmSplash->Vis("Indlæser Præfixliste."_t);
    IndlæsRefPfx();
    frmSplash->Vis("Indlæser EDR stationer."_t);
    IndlæsEDR();

    frmMain.Load();
    frmSplash.Unload();
}

}  // namespace vatro
