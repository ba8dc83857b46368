// SPDX-License-Identifier: MIT
#include "entry/frmMain.h"

#include "call/call_analysis.h"
#include "correction/frmRetQSO.h"
#include "country/lookup.h"
#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmQSOnr.h"
#include "entry/operators.h"
#include "entry/qso_fields.h"
#include "entry/validation.h"
#include "exchange/backup.h"
#include "exchange/frmVisTekst.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "keyer/texts.h"
#include "log/duplicates.h"
#include "platform.h"
#include "score/stations.h"
#include "stations/frmEDR.h"
#include "tables/unknown.h"

namespace vatro {

namespace {

constexpr std::string_view kLeftKey = "MainLeft";

const Font kFixedFont{"Fixedsys", 9};

std::vector<Toolbar::ToolButton> ToolButtons() {
    constexpr int kBand = 1;
    constexpr int kMode = 2;
    return {{1, "10m", kBand, "Skift til 10m"},
            {2, "15m", kBand, {}},
            {3, "20m", kBand, {}},
            {4, "40m", kBand, {}},
            {5, "80m", kBand, {}},
            {6, "XXm", kBand, {}, false},
            {7, "", 0, {}},
            {8, "SSB", kMode, {}},
            {9, "CW", kMode, {}},
            {10, "PSK31", kMode, {}},
            {11, "RTTY", kMode, {}},
            {12, "HELL", kMode, {}}};
}

}  // namespace

FrmMain::FrmMain()
    : MainMenu("frmMain", FormKind::Main, "Vatro"),
      Toolbar1(*this, "Toolbar1", ToolButtons()),
      Label1(
          *this, "Label1",
          "    UTC      Call                                    Sendt               Modtaget         Pts. Multiplier                Operatør      QSL    Mode       Dato"_t),
      List1(*this, "List1", kFixedFont),
      Frame1(*this, "Frame1", "UTC:         &Call:                                 RST sendt:          RST modtaget:", &Text1[kCallField]),
      Text1{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3}, {*this, "Text1", 4}, {*this, "Text1", 5}},
      Check1(*this, "Check1", "Q&SL"),
      Command1(*this, "Command1", "&Log"),
      Frame2(*this, "Frame2", "&Operatør Call:"_t, &Combo1),
      Combo1(*this, "Combo1"),
      Timer1(*this, "Timer1", 60000),
      sbStatusBar(*this, "sbStatusBar", {"Status", " 00000", "Point ", " 0000", "Mult. ", " 0000000", "I alt "}) {
    SetTabOrder({&Text1[0], &Text1[1], &Text1[2], &Text1[3], &Text1[4], &Text1[5], &Check1, &Command1, &Combo1, &List1});
    BindFields();
    BindMenu();
}

void FrmMain::BindFields() {
    Toolbar1.SetToolTip("Vælg bånd/mode"_t);
    List1.SetToolTip("Loggede QSO'er");
    Check1.SetToolTip("Checkes af, hvis du har lovet at sende et QSLkort");
    Command1.SetToolTip("Tryk her eller tryk Enter for at registrere QSO'en");
    Combo1.SetToolTip("Skriv/vælg operatørcall"_t);
    sbStatusBar.SetToolTip("Aktuel status og informationer");
    constexpr std::string_view kTips[]{"Tidspunkt. Står 'stille' indtil QSO logges, hvis det rettes"_t,
                                       "Indtast call for den kørte station"_t,
                                       "Sendt rapport",
                                       "Sendt rapportløbenr"_t,
                                       "Modtaget rapport",
                                       "Modtaget rapportløbenr"_t};
    SetFieldLengths(Text1);
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) {
        TextBox& field = Text1[i];
        field.SetToolTip(kTips[i]);
        field.KeyPress = [this, i](KeyCode& key) { HandleFieldKey(Text1, i, key, ValiderQSO); };
        field.KeyFilter = [i](KeyCode& key) { FilterFieldKey(i, key); };
        field.Change = [this, i] { Text1_Change(i); };
        field.GotFocus = [this, i] { Text1_GotFocus(i); };
        field.LostFocus = [this, i] { Text1_LostFocus(i); };
    }
    Text1[kNumberSentField].SetLocked(true);
    Text1[kNumberSentField].SetTabStop(false);

    Check1.KeyPress = [](KeyCode& key) {
        if (key == kEnter) ValiderQSO();
    };
    Command1.Click = ValiderQSO;
    List1.KeyPress = [](KeyCode& key) {
        if (key == kEnter) CorrectLine();
    };
    List1.DblClick = CorrectLine;
    Combo1.KeyPress = [this](KeyCode& key) { OperatørTast(Combo1, key); };
    Combo1.KeyFilter = [this](KeyCode& key) { OperatorFilter(Combo1, key); };
    Combo1.Click = [this] { OperatørValgt(Combo1); };
    Combo1.LostFocus = [this] {
        OperatørTjek(Combo1, true);
        GemOperatører(Combo1);
    };
    Timer1.OnTimer = TimerTick;
    Toolbar1.ButtonClick = ChangeBandMode;
}

bool FrmMain::HasPlace() {
    return platform().settings.Read(kSettings, kLeftKey).has_value();
}

void FrmMain::Form_Load() {
    MoveTo(ReadTwips(kLeftKey, 1000), ReadTwips("MainTop", 1000));
    gsBand = ReadText(kSettings, "Band", "80m");
    gsMode = ReadText(kSettings, "Mode", "SSB");
    gsQsoMode = ReadText(kSettings, "QsoMode", "SSB");
    gbAutoTid = static_cast<std::int16_t>(ReadNumber(kSettings, "AutoTid", 1));
    gbVisLand = ReadFlag(kSettings, "VisLand", true);
    gsLogLib = ReadText(kSettings, "gsLogLib");
    gsBackupLib = ReadText(kSettings, "gsBackupLib");
    SetCaption("Vatro " + gsMyCall);
    if (gbAutoTid == 1)
        TimerStart();
    else
        TimerStop();
    mnuVisLand.SetTicked(gbVisLand);
    ShowContestClass();
    SetCwMenuTekster();

    // All side windows come up at every start; their ticks are not kept.
    frmB4->Show();
    mnuVisB4.SetTicked(true);
    Show();
    frmQSOnr->Show();
    mnuVisQSOnr.SetTicked(true);
    frmContestCall->Show();
    mnuViewContestCall.SetTicked(true);

    SetToolbar();
    for (MenuItem* entry : BandEntries())
        if (entry->Index() == BandIndex(gsBand) || entry->Index() == ModeIndex(gsQsoMode)) entry->SetTicked(true);
    mnuCW.SetEnabled(gsQsoMode == "CW");

    if (gsLogLib.empty()) mnuFilerSætLogbibliotek.Click();
    IndlæsLogfil();
    LæsOperatører(Combo1, gsOperatør.Padded());
    ResetQSO();
    up_ = true;
    if (gbVisInfo) VisStartInfo();
    // Again, so that the time spent loading does not shift the clock.
    if (gbAutoTid == 1) TimerStart();
}

void FrmMain::Form_Resize() {
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

void FrmMain::Form_Unload() {
    // More than thirty values: the disk takes them in one piece.
    const SettingsBatch together(platform().settings);
    SetHourglass(true);
    GemOperatører(Combo1);
    // The keyer lets other events run while it goes, which may close windows too.
    for (std::size_t i = LoadedForms().size(); i-- > 1;)
        if (i < LoadedForms().size()) LoadedForms()[i]->Unload();
    StoreState();
    SetHourglass(false);
}

void FrmMain::StoreState() {
    if (State() != WindowState::Minimised) {
        StoreNumber(kSettings, kLeftKey, Left());
        StoreNumber(kSettings, "MainTop", Top());
    }
    StoreText(kSettings, "gsKlasse", gsKlasse);
    StoreText(kSettings, "gsFDlib", gsFDLib);
    StoreText(kSettings, "gsLoglib", gsLogLib);
    StoreText(kSettings, "gsBackupLib", gsBackupLib);
    StoreText(kSettings, "Band", gsBand);
    StoreText(kSettings, "Mode", gsMode);
    StoreText(kSettings, "QsoMode", gsQsoMode);
    StoreNumber(kSettings, "AutoTid", gbAutoTid);
    StoreFlag(kSettings, "VisLand", gbVisLand);
    StoreText(kSettings, "MyCall", gsMyCall);
    StoreText(kSettings, "UTC", gsUTC);
    StoreText(kSettings, "gsTelefon", gsTelefon);
    StoreText(kSettings, "LastOP", gsOperatør.Padded());
    StoreFlag(kSettings, "VisInfo2002", gbVisInfo);
}

void FrmMain::Text1_Change(int Index) {
    if (Index != kCallField) return;
    const TextBox& field = Text1[kCallField];
    if (field.Text().size() < 2) frmB4->List1.Clear();
    if (!field.Text().empty()) {
        std::string text;
        LandStatusTekst(field.Text(), text);
        sbStatusBar.SetPanel(1, text);
    }
    if (field.Text().size() > 1) WkdB4(field, List1, frmB4->List1);
    frmQSOnr->visQSOnr();
}

void FrmMain::Text1_GotFocus(int Index) {
    // A time being typed is not overwritten: the clock stands still until the contact is logged.
    if (Index == kUtcField) TimerStop();
    if (Index == kUtcField || Index == kReportSentField || Index == kReportReceivedField) Text1[Index].SelectAll();
}

void FrmMain::Text1_LostFocus(int Index) {
    if (Index != kCallField) return;
    gsCall = Text1[kCallField].Text();
    StripCall(gsCall);
    if (gsCall.size() > 1) {
        std::string text;
        findEDRstn(gsCall, text);
        if (!text.empty()) sbStatusBar.SetPanel(1, text);
    }
    CheckDupe();
    if (gbDupe) {
        frmQSOnr->visDupe();
        sbStatusBar.SetPanel(1, kDupeWarning);
    }
}

}  // namespace vatro
