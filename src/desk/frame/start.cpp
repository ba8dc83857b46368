// SPDX-License-Identifier: MIT
#include "frame/start.h"
#include "frame/state.h"

#include <exception>
#include <functional>
#include <vector>

#include "codepage.h"
#include "entry/frmMain.h"
#include "entry/operators.h"
#include "exchange/equipment.h"
#include "frame/frmSplash.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "keyer/keyer_settings.h"
#include "page.h"
#include "platform.h"
#include "program.h"
#include "tables/load_tables.h"

namespace vatro {

using namespace literals;

namespace {

void ReadSettings() {
    desk().gsUTC = ReadSetting(setting::kUtc);
    desk().gsMyCall = ReadSetting(setting::kMyCall);
    desk().gsFDLib = ReadSetting(setting::kTablesDirectory);
    desk().gsKlasse = ReadSetting(setting::kContestClass);
    desk().gsTelefon = ReadSetting(setting::kTelephone);
    desk().gsOperatør = ReadSetting(setting::kLastOperator);
    desk().gbVisInfo = ReadSetting(setting::kShowInfo);
}

/// Runs a step and ignores its failure.
void Try(const std::function<void()>& step) noexcept {
    try {
        step();
    } catch (const std::exception&) {
        // The program is ending, so there is nobody to tell.
    }
}

}  // namespace

void ResetAll() {
    ResetDesk();
}

void ShowAlreadyRunning() {
    MessageBox refusal;
    refusal.text = "Der må kun køre een udgave ellers går der kuk i loggen!"_t;
    refusal.title = "Vatro kører allerede."_t;
    MsgBox(refusal);
}

void StoreRunningProgram() noexcept {
    auto* main = static_cast<FrmMain*>(frmMain.Peek());
    if (main == nullptr || !main->up) return;
    const SettingsBatch together(platform().settings);
    // This step fails, and the operators are left out, while another handler has file 1 open.
    Try([main] { GemOperatører(main->operatorBox); });
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

    // This comes before any table is loaded: two running copies would write the same log.
    if (platform().instance.AnotherCopyRuns()) {
        ShowAlreadyRunning();
        EndProgram();
    }

    frmSplash->Show();
    frmSplash->Refresh();

    if (desk().gsFDLib.empty()) {
        desk().gsFDLib = platform().files.CurrentDirectory();
        // This key is not the one that is read above; that one is written at a regular end. Keep both: settings of earlier versions have
        // them (docs/rules.md).
        StoreSetting(setting::kFirstTablesDirectory, desk().gsFDLib);
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
