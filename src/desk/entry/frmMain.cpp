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
#include "papers/weekend.h"
#include "platform.h"
#include "score/stations.h"
#include "stations/frmEDR.h"
#include "tables/unknown.h"

namespace vatro {

namespace {

constexpr std::string_view kVenstre = "MainLeft";

const Font kFast{"Fixedsys", 9};

std::vector<Toolbar::ToolButton> Knapper() {
    constexpr int kBånd = 1;
    constexpr int kMode = 2;
    return {{1, "10m", kBånd, "Skift til 10m"},
            {2, "15m", kBånd, {}},
            {3, "20m", kBånd, {}},
            {4, "40m", kBånd, {}},
            {5, "80m", kBånd, {}},
            {6, "XXm", kBånd, {}, false},
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
      Toolbar1(*this, "Toolbar1", Knapper()),
      Label1(
          *this, "Label1",
          "    UTC      Call                                    Sendt               Modtaget         Pts. Multiplier                Operatør      QSL    Mode       Dato"_t),
      List1(*this, "List1", kFast),
      Frame1(*this, "Frame1", "UTC:         &Call:                                 RST sendt:          RST modtaget:", &Text1[kCallFelt]),
      Text1{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3}, {*this, "Text1", 4}, {*this, "Text1", 5}},
      Check1(*this, "Check1", "Q&SL"),
      Command1(*this, "Command1", "&Log"),
      Frame2(*this, "Frame2", "&Operatør Call:"_t, &Combo1),
      Combo1(*this, "Combo1"),
      Timer1(*this, "Timer1", 60000),
      sbStatusBar(*this, "sbStatusBar", {"Status", " 00000", "Point ", " 0000", "Mult. ", " 0000000", "I alt "}) {
    SetTabOrder({&Text1[0], &Text1[1], &Text1[2], &Text1[3], &Text1[4], &Text1[5], &Check1, &Command1, &Combo1, &List1});
    BindFelter();
    BindMenu();
}

void FrmMain::BindFelter() {
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
    SætFeltlængder(Text1);
    for (int i = kUtcFelt; i <= kNrModtagetFelt; ++i) {
        TextBox& felt = Text1[i];
        felt.SetToolTip(kTips[i]);
        felt.KeyPress = [this, i](KeyCode& key) { FeltTast(Text1, i, key, ValiderQSO); };
        felt.KeyFilter = [i](KeyCode& key) { FeltFilter(i, key); };
        felt.Change = [this, i] { Text1_Change(i); };
        felt.GotFocus = [this, i] { Text1_GotFocus(i); };
        felt.LostFocus = [this, i] { Text1_LostFocus(i); };
    }
    Text1[kNrSendtFelt].SetLocked(true);
    Text1[kNrSendtFelt].SetTabStop(false);

    Check1.KeyPress = [](KeyCode& key) {
        if (key == kEnter) ValiderQSO();
    };
    Command1.Click = ValiderQSO;
    List1.KeyPress = [](KeyCode& key) {
        if (key == kEnter) RetLinje();
    };
    List1.DblClick = RetLinje;
    Combo1.KeyPress = [this](KeyCode& key) { OperatørTast(Combo1, key); };
    Combo1.KeyFilter = [this](KeyCode& key) { OperatørFilter(Combo1, key); };
    Combo1.Click = [this] { OperatørValgt(Combo1); };
    Combo1.LostFocus = [this] {
        OperatørTjek(Combo1, true);
        GemOperatører(Combo1);
    };
    Timer1.OnTimer = TimerTick;
    Toolbar1.ButtonClick = SkiftBåndMode;
}

bool FrmMain::HarPlads() {
    return platform().settings.Read(kSettings, kVenstre).has_value();
}

void FrmMain::Form_Load() {
    MoveTo(HentTwips(kVenstre, 1000), HentTwips("MainTop", 1000));
    gsBand = HentTekst(kSettings, "Band", "80m");
    gsMode = HentTekst(kSettings, "Mode", "SSB");
    gsQsoMode = HentTekst(kSettings, "QsoMode", "SSB");
    gbAutoTid = static_cast<std::int16_t>(HentTal(kSettings, "AutoTid", 1));
    gbVisLand = HentFlag(kSettings, "VisLand", true);
    gsLogLib = HentTekst(kSettings, "gsLogLib");
    gsBackupLib = HentTekst(kSettings, "gsBackupLib");
    SetCaption("Vatro " + gsMyCall);
    if (gbAutoTid == 1)
        TimerStart();
    else
        TimerStop();
    mnuVisLand.SetTicked(gbVisLand);
    VisKlasse();
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
    for (MenuItem* punkt : BåndPunkter())
        if (punkt->Index() == BåndIndeks(gsBand) || punkt->Index() == ModeIndeks(gsQsoMode)) punkt->SetTicked(true);
    mnuCW.SetEnabled(gsQsoMode == "CW");

    if (gsLogLib.empty()) mnuFilerSætLogbibliotek.Click();
    Find1Weekend();
    IndlæsLogfil();
    LæsOperatører(Combo1, gsOperatør.Padded());
    ResetQSO();
    up_ = true;
    if (gbVisInfo) VisStartInfo();
    // Again, so that the time spent loading does not shift the clock.
    if (gbAutoTid == 1) TimerStart();
}

void FrmMain::Form_Resize() {
    const bool vis = State() != WindowState::Minimised;
    const auto skift = [vis](const MenuItem& punkt, auto& vindue) {
        if (!punkt.Ticked() || vindue->Visible() == vis) return;
        if (vis)
            vindue->Show();
        else
            vindue->Hide();
    };
    skift(mnuVisQSOnr, frmQSOnr);
    skift(mnuVisB4, frmB4);
    if (vis && Visible()) SetFocus();
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
        GemTal(kSettings, kVenstre, Left());
        GemTal(kSettings, "MainTop", Top());
    }
    GemTekst(kSettings, "gsKlasse", gsKlasse);
    GemTekst(kSettings, "gsFDlib", gsFDLib);
    GemTekst(kSettings, "gsLoglib", gsLogLib);
    GemTekst(kSettings, "gsBackupLib", gsBackupLib);
    GemTekst(kSettings, "Band", gsBand);
    GemTekst(kSettings, "Mode", gsMode);
    GemTekst(kSettings, "QsoMode", gsQsoMode);
    GemTal(kSettings, "AutoTid", gbAutoTid);
    GemFlag(kSettings, "VisLand", gbVisLand);
    GemTekst(kSettings, "MyCall", gsMyCall);
    GemTekst(kSettings, "UTC", gsUTC);
    GemTekst(kSettings, "gsTelefon", gsTelefon);
    GemTekst(kSettings, "LastOP", gsOperatør.Padded());
    GemFlag(kSettings, "VisInfo2002", gbVisInfo);
}

void FrmMain::Text1_Change(int Index) {
    if (Index != kCallFelt) return;
    const TextBox& felt = Text1[kCallFelt];
    if (felt.Text().size() < 2) frmB4->List1.Clear();
    if (!felt.Text().empty()) {
        std::string tekst;
        LandStatusTekst(felt.Text(), tekst);
        sbStatusBar.SetPanel(1, tekst);
    }
    if (felt.Text().size() > 1) WkdB4(felt, List1, frmB4->List1);
    frmQSOnr->visQSOnr();
}

void FrmMain::Text1_GotFocus(int Index) {
    // A time being typed is not overwritten: the clock stands still until the contact is logged.
    if (Index == kUtcFelt) TimerStop();
    if (Index == kUtcFelt || Index == kRstSendtFelt || Index == kRstModtagetFelt) Text1[Index].SelectAll();
}

void FrmMain::Text1_LostFocus(int Index) {
    if (Index != kCallFelt) return;
    gsCall = Text1[kCallFelt].Text();
    StripCall(gsCall);
    if (gsCall.size() > 1) {
        std::string tekst;
        findEDRstn(gsCall, tekst);
        if (!tekst.empty()) sbStatusBar.SetPanel(1, tekst);
    }
    CheckDupe();
    if (gbDupe) {
        frmQSOnr->visDupe();
        sbStatusBar.SetPanel(1, kDupeAdvarsel);
    }
}

}  // namespace vatro
