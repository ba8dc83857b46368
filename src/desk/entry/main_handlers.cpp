// SPDX-License-Identifier: MIT
//
// The handlers of the entry form for its fields, its load and its end. Those of the menu are in menu_clicks.cpp.
#include "call/call_analysis.h"
#include "correction/frmRetQSO.h"
#include "entry/clock.h"
#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/menu_clicks.h"
#include "entry/next_contact.h"
#include "entry/operators.h"
#include "entry/qso_fields.h"
#include "entry/validation.h"
#include "exchange/frmVisTekst.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "frame/state.h"
#include "keyer/texts.h"
#include "log/duplicates.h"
#include "platform.h"
#include "tables/worked.h"

namespace vatro {

namespace {

/// Keeps the list of the form in step with the log in memory.
class ShownLog : public LogObserver {
public:
    void Cleared() override {
        if (ListBox* list = List()) list->OwnerCleared();
    }
    void Appended() override {
        if (ListBox* list = List()) list->OwnerAppended();
    }
    void Replaced(std::size_t row) override {
        if (ListBox* list = List()) list->OwnerReplaced(static_cast<int>(row));
    }

private:
    static ListBox* List() { return frmMain.Loaded() ? &frmMain->log : nullptr; }
};

class EntryForm : public FrmMain {
public:
    EntryForm();

    void Form_Load() override;
    void Form_Unload() override;
    void StoreState() override;
    void Form_Resize() override;

private:
    void BindFields();
    void FieldChanged(int Index);
    void FieldEntered(int Index);
    void FieldLeft(int Index);
};

EntryForm::EntryForm() {
    static ShownLog shownLog;
    desk().log.Observe(&shownLog);
    log.ShowRowsOf(desk().log.SharedLines());
    BindFields();
    BindMenu(*this);
}

void EntryForm::BindFields() {
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) {
        TextBox& field = fields[i];
        field.KeyPress = [this, i](KeyCode& key) { HandleFieldKey(fields, i, key, ValiderQSO); };
        field.KeyFilter = [i](KeyCode& key) { FilterFieldKey(i, key); };
        field.Change = [this, i] { FieldChanged(i); };
        field.GotFocus = [this, i] { FieldEntered(i); };
        field.LostFocus = [this, i] { FieldLeft(i); };
    }
    qsl.KeyPress = [](KeyCode& key) {
        if (key == kEnter) ValiderQSO();
    };
    logButton.Click = ValiderQSO;
    log.KeyPress = [](KeyCode& key) {
        if (key == kEnter) CorrectLine();
    };
    log.DblClick = CorrectLine;
    operatorBox.KeyPress = [this](KeyCode& key) { OperatørTast(operatorBox, key); };
    operatorBox.KeyFilter = [this](KeyCode& key) { OperatorFilter(operatorBox, key); };
    operatorBox.Click = [this] { OperatørValgt(operatorBox); };
    operatorBox.LostFocus = [this] {
        OperatørTjek(operatorBox, true);
        GemOperatører(operatorBox);
    };
    minuteTimer.OnTimer = TimerTick;
    toolbar.ButtonClick = ChangeBandMode;
}

void EntryForm::Form_Load() {
    MoveTo(ReadSetting(setting::kMainLeft), ReadSetting(setting::kMainTop));
    desk().gsBand = ReadSetting(setting::kBand);
    desk().gsMode = ReadSetting(setting::kMode);
    desk().gsQsoMode = ReadSetting(setting::kQsoMode);
    desk().gbAutoTid = ReadSetting(setting::kAutoTime);
    desk().gbVisLand = ReadSetting(setting::kShowCountry);
    desk().gsLogLib = ReadSetting(setting::kLogDirectory);
    desk().gsBackupLib = ReadSetting(setting::kBackupDirectory);
    SetCaption("Vatro " + desk().gsMyCall);
    if (desk().gbAutoTid == 1)
        TimerStart();
    else
        TimerStop();
    mnuVisLand.SetTicked(desk().gbVisLand);
    ShowContestClass(*this);
    SetCwMenuTekster();

    // All side windows are shown at every start; whether one was hidden is not stored.
    frmB4->Show();
    mnuVisB4.SetTicked(true);
    Show();
    frmQSOnr->Show();
    mnuVisQSOnr.SetTicked(true);
    frmContestCall->Show();
    mnuViewContestCall.SetTicked(true);

    SetToolbar();
    for (MenuItem* entry : BandEntries())
        if (entry->Index() == BandIndex(desk().gsBand) || entry->Index() == ModeIndex(desk().gsQsoMode)) entry->SetTicked(true);
    mnuCW.SetEnabled(desk().gsQsoMode == "CW");

    if (desk().gsLogLib.empty()) mnuFilerSætLogbibliotek.Click();
    IndlæsLogfil();
    LæsOperatører(operatorBox, desk().gsOperatør.Padded());
    ResetQSO();
    up = true;
    if (desk().gbVisInfo) VisStartInfo();
    // Start the clock a second time: the wait for its first tick was computed before the load, which may have taken a while.
    if (desk().gbAutoTid == 1) TimerStart();
}

void EntryForm::Form_Resize() {
    const bool show = State() != WindowState::Minimised;
    const auto toggle = [show](const MenuItem& entry, auto& window) {
        if (!entry.Ticked() || window->Visible() == show) return;
        if (show)
            window->Show();
        else
            window->Hide();
    };
    toggle(mnuVisQSOnr, frmQSOnr);
    toggle(mnuVisB4, frmB4);
    if (show && Visible()) SetFocus();
}

void EntryForm::Form_Unload() {
    // More than thirty values; they are written to the disk in one piece.
    const SettingsBatch together(platform().settings);
    SetHourglass(true);
    GemOperatører(operatorBox);
    // Backwards and by index: unloading the keyer runs other events, which may close windows too.
    for (std::size_t i = LoadedForms().size(); i-- > 1;)
        if (i < LoadedForms().size()) LoadedForms()[i]->Unload();
    StoreState();
    SetHourglass(false);
}

void EntryForm::StoreState() {
    if (State() != WindowState::Minimised) {
        StoreSetting(setting::kMainLeft, Left());
        StoreSetting(setting::kMainTop, Top());
    }
    StoreSetting(setting::kContestClass, desk().gsKlasse);
    StoreSetting(setting::kTablesDirectory, desk().gsFDLib);
    StoreSetting(setting::kLogDirectory, desk().gsLogLib);
    StoreSetting(setting::kBackupDirectory, desk().gsBackupLib);
    StoreSetting(setting::kBand, desk().gsBand);
    StoreSetting(setting::kMode, desk().gsMode);
    StoreSetting(setting::kQsoMode, desk().gsQsoMode);
    StoreSetting(setting::kAutoTime, desk().gbAutoTid);
    StoreSetting(setting::kShowCountry, desk().gbVisLand);
    StoreSetting(setting::kMyCall, desk().gsMyCall);
    StoreSetting(setting::kUtc, desk().gsUTC);
    StoreSetting(setting::kTelephone, desk().gsTelefon);
    StoreSetting(setting::kLastOperator, desk().gsOperatør.Padded());
    StoreSetting(setting::kShowInfo, desk().gbVisInfo);
}

void EntryForm::FieldChanged(int Index) {
    if (Index != kCallField) return;
    const TextBox& field = fields[kCallField];
    if (field.Text().size() < 2) frmB4->earlierContacts.Clear();
    if (!field.Text().empty()) {
        const CountryStatus country = ShownCountry(field.Text());
        statusBar.SetPanel(1, country.text, MarkOf(country));
    }
    if (field.Text().size() > 1) frmB4->ShowContacts(WkdB4(field.Text(), desk().log));
    frmQSOnr->visQSOnr();
}

void EntryForm::FieldEntered(int Index) {
    // The clock must not overwrite a time that is being typed, so it is stopped until the contact is logged.
    if (Index == kUtcField) TimerStop();
    if (Index == kUtcField || Index == kReportSentField || Index == kReportReceivedField) fields[Index].SelectAll();
}

void EntryForm::FieldLeft(int Index) {
    if (Index != kCallField) return;
    desk().gsCall = StripCall(fields[kCallField].Text());
    if (desk().gsCall.size() > 1)
        if (const auto station = desk().stations.findEDRstn(desk().gsCall)) statusBar.SetPanel(1, *station, PanelMark::Station);
    RecordDuplicate();
    if (desk().gbDupe) {
        frmQSOnr->visDupe();
        statusBar.SetPanel(1, kDupeWarning, PanelMark::Duplicate);
    }
}

}  // namespace

FormSlot<FrmMain> frmMain{"frmMain", [] { return std::make_unique<EntryForm>(); }};

}  // namespace vatro
