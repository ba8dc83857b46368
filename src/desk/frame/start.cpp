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
#include "keyer/texts.h"
#include "morse/synthesis.h"
#include "numbers.h"
#include "page.h"
#include "platform.h"
#include "program.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

namespace {

void ReadSettings() {
    gsUTC = ReadSetting(setting::kUtc);
    gsMyCall = ReadSetting(setting::kMyCall);
    gsFDLib = ReadSetting(setting::kTablesDirectory);
    gsKlasse = ReadSetting(setting::kContestClass);
    gsTelefon = ReadSetting(setting::kTelephone);
    gsOperatør = ReadSetting(setting::kLastOperator);
    gbVisInfo = ReadSetting(setting::kShowInfo);
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

std::string VersionText() {
    const Version& version = platform().version;
    return PlainNumber(version.major) + "." + PlainNumber(version.minor) + "." + PlainNumber(version.revision);
}

void ResetAll() {
    ResetStation();
    ResetBandMode();
    ResetLog();
    ResetTables();
    ClearStations();
    ResetOperator();
    NulstilSyntese();
    NulstilCWTekster();
    gsBackupLib.clear();
    gbAutoTid = 0;
    gbVisLand = false;
}

void ShowAlreadyRunning() {
    MessageBox refusal;
    refusal.text = "Der må kun køre een udgave ellers går der kuk i loggen!"_t;
    refusal.title = "Vatro kører allerede."_t;
    MsgBox(refusal);
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
    ResetAll();
    platform().printer.Abandon();
    ReadSettings();
    HentCWIndstillinger();
    HentUdstyr();

    // Before any table is loaded: two copies would write the same log.
    if (platform().instance.AnotherCopyRuns()) {
        ShowAlreadyRunning();
        EndProgram();
    }

    frmSplash->Show();
    frmSplash->Refresh();

    if (gsFDLib.empty()) {
        gsFDLib = platform().files.CurrentDirectory();
        // Another key than the one read above, which gets the value at a regular end: both are meant.
        StoreSetting(setting::kFirstTablesDirectory, gsFDLib);
    }

    frmSplash->ShowStage("Indlæser Lande"_t);
    IndlæsLande();
    frmSplash->ShowStage("Indlæser Præfixliste."_t);
    IndlæsRefPfx();
    frmSplash->ShowStage("Indlæser EDR stationer."_t);
    IndlæsEDR();

    frmMain.Load();
    frmSplash.Unload();
}

}  // namespace vatro
