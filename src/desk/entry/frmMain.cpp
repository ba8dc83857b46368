// SPDX-License-Identifier: MIT
#include "entry/frmMain.h"

#include <vector>

#include "entry/operators.h"
#include "entry/qso_fields.h"
#include "frame/settings.h"

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
      toolbar(*this, "Toolbar1", ToolButtons()),
      columnHeads(
          *this, "Label1",
          "    UTC      Call                                    Sendt               Modtaget         Pts. Multiplier                Operatør      QSL    Mode       Dato"_t),
      log(*this, "List1", kFixedFont),
      contactFrame(*this, "Frame1",
                   "UTC:         &Call:                                 RST sendt:          RST modtaget:", &fields[kCallField]),
      fields{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3}, {*this, "Text1", 4}, {*this, "Text1", 5}},
      qsl(*this, "Check1", "Q&SL"),
      logButton(*this, "Command1", "&Log"),
      operatorFrame(*this, "Frame2", "&Operatør Call:"_t, &operatorBox),
      operatorBox(*this, "Combo1"),
      minuteTimer(*this, "Timer1", 60000),
      statusBar(*this, "sbStatusBar", {"Status", " 00000", "Point ", " 0000", "Mult. ", " 0000000", "I alt "}) {
    SetTabOrder({&fields[0], &fields[1], &fields[2], &fields[3], &fields[4], &fields[5], &qsl, &logButton, &operatorBox, &log});
    SetToolTips();
    SetFieldLengths(fields);
    fields[kNumberSentField].SetLocked(true);
    fields[kNumberSentField].SetTabStop(false);
}

void FrmMain::SetToolTips() {
    toolbar.SetToolTip("Vælg bånd/mode"_t);
    log.SetToolTip("Loggede QSO'er");
    qsl.SetToolTip("Checkes af, hvis du har lovet at sende et QSLkort");
    logButton.SetToolTip("Tryk her eller tryk Enter for at registrere QSO'en");
    operatorBox.SetToolTip("Skriv/vælg operatørcall"_t);
    statusBar.SetToolTip("Aktuel status og informationer");
    constexpr std::string_view kTips[]{"Tidspunkt. Står 'stille' indtil QSO logges, hvis det rettes"_t,
                                       "Indtast call for den kørte station"_t,
                                       "Sendt rapport",
                                       "Sendt rapportløbenr"_t,
                                       "Modtaget rapport",
                                       "Modtaget rapportløbenr"_t};
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) fields[i].SetToolTip(kTips[i]);
}

}  // namespace vatro
