// SPDX-License-Identifier: MIT
#include "entry/frmMain.h"

#include <vector>

#include "entry/operators.h"
#include "entry/qso_fields.h"
#include "frame/settings.h"
#include "platform.h"

namespace vatro {

namespace {

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
    SetToolTips();
    SetFieldLengths(Text1);
    Text1[kNumberSentField].SetLocked(true);
    Text1[kNumberSentField].SetTabStop(false);
}

void FrmMain::SetToolTips() {
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
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) Text1[i].SetToolTip(kTips[i]);
}

bool FrmMain::HasPlace() {
    return platform().settings.Read(kSettings, kMainLeftKey).has_value();
}

}  // namespace vatro
