// SPDX-License-Identifier: MIT
#include "keyer/frmCW.h"
#include "frame/state.h"

#include <algorithm>

#include "codepage.h"
#include "entry/keys.h"
#include "exchange/equipment.h"
#include "keyer/frmCWTX.h"
#include "keyer/keyer_settings.h"
#include "keyer/texts.h"
#include "morse/text_codes.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

// The 4 stands twice and out of order; the set is what counts.
constexpr std::string_view kTextCharacters = " ABCDEFGHIJKLMNOPQRSTUVWXYZÆØÅ12434567890/#?,.-:()="_t;

/// Two more than a first start has: whoever asks for the defaults gets the full set, a new station only what every contact needs.
constexpr std::array<std::string_view, kCwTextCount> kDefaultTexts{"CQ TEST DE #R #R TEST K", "CL?",   "#R",
                                                                   "#C UR #T #N BK",          "TU #R", "#C?"};

}  // namespace

FrmCW::FrmCW()
    : Form("frmCW", FormKind::Dialog, "CW indstillinger"),
      Frame2(*this, "Frame2", "Tekster:"),
      Label2{{*this, "Label2", 0, "F&5:", &Text1[0]},       {*this, "Label2", 1, "F&6:", &Text1[1]},
             {*this, "Label2", 2, "F&7:", &Text1[2]},       {*this, "Label2", 3, "F&8:", &Text1[3]},
             {*this, "Label2", 4, "Shift+F&5:", &Text1[4]}, {*this, "Label2", 5, "Shift+F&6:", &Text1[5]},
             {*this, "Label2", 6, "Shift+F&7:", &Text1[6]}, {*this, "Label2", 7, "Shift+F&8:", &Text1[7]}},
      Text1{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3},
            {*this, "Text1", 4}, {*this, "Text1", 5}, {*this, "Text1", 6}, {*this, "Text1", 7}},
      Frame1(*this, "Frame1", "#-Koder: "),
      Label1{{*this, "Label1", 0, "#C: Call-feltets indhold"},
             {*this, "Label1", 1, "#N: Løbenummer"_t},
             {*this, "Label1", 2, "#R: Contest call"},
             {*this, "Label1", 3, "#T: RST sendt"}},
      Frame3(*this, "Frame3", "&CW", &txtWPM),
      Label6(*this, "Label6", -1, "&WPM:", &txtWPM),
      txtWPM(*this, "txtWPM"),
      UpDown2(*this, "UpDown2", txtWPM, {.min = 6, .max = 60, .step = 2}),
      Label7(*this, "Label7", -1, "&Tone:", &txtTone),
      txtTone(*this, "txtTone"),
      UpDown1(*this, "UpDown1", txtTone, {.min = 300, .max = 1800, .step = 25}),
      Label11(*this, "Label11", "Min    Volume   Max"),
      HScroll1(*this, "HScroll1", {.min = 0, .max = 10000, .smallChange = 1, .largeChange = 1023}),
      Frame4(*this, "Frame4", "&RST format:", &optRST[0]),
      optRST{{*this, "optRST", 0, "5&99", Frame4}, {*this, "optRST", 1, "5&nn", Frame4}},
      Frame5(*this, "Frame5", "Løbenummer format:"_t),
      optLobenr{{*this, "optLobenr", 0, "&001/1000", Frame5}, {*this, "optLobenr", 1, "&--1/1000", Frame5}},
      cmdReset(*this, "cmdReset", "&Default tekster"),
      cmdOK(*this, "cmdOK", "&OK"),
      cmdAnnuller(*this, "cmdAnnuller", "Annuller") {
    cmdOK.isDefault = true;
    cmdAnnuller.isCancel = true;
    std::vector<Control*> order;
    for (TextBox& field : Text1) {
        order.push_back(&field);
        field.KeyFilter = [](KeyCode& key) {
            key = UpperKey(key);
            FilterKey(key, kTextCharacters);
        };
    }
    order.insert(order.end(), {&txtWPM, &txtTone, &HScroll1, &optRST[0], &optRST[1], &optLobenr[0], &optLobenr[1]});
    order.insert(order.end(), {&cmdReset, &cmdOK, &cmdAnnuller});
    SetTabOrder(order);
    cmdReset.Click = [this] { cmdReset_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdAnnuller.Click = [this] { Unload(); };
}

void FrmCW::Form_Load() {
    const KeyerState& cw = desk().cw;
    txtWPM.SetText(PlainNumber(cw.giCWWPM));
    txtTone.SetText(PlainNumber(cw.giCWTone));
    HScroll1.SetValue(std::clamp<int>(cw.glCWVolume, HScroll1.Limits().min, HScroll1.Limits().max));
    optLobenr[cw.gsCWNummerFormat == kNumberWithZeros ? 0 : 1].SetValue(true);
    optRST[cw.gsCWRSTFormat == kReportInFigures ? 0 : 1].SetValue(true);
    for (std::size_t i = 0; i < kCwTextCount; ++i) Text1[i].SetText(cw.CWTekster[i]);
}

void FrmCW::cmdReset_Click() {
    MessageBox question;
    question.text = "Er du sikker på at du vil ændre teksterne?"_t;
    question.title = "Default tekster";
    question.buttons = Buttons::YesNo;
    question.icon = Icon::Question;
    question.defaultNo = true;
    if (MsgBox(question) == Answer::No) return;
    for (std::size_t i = 0; i < kCwTextCount; ++i) Text1[i].SetText(kDefaultTexts[i]);
}

void FrmCW::cmdOK_Click() {
    KeyerState& cw = desk().cw;
    for (std::size_t i = 0; i < kCwTextCount; ++i) cw.CWTekster[i] = Text1[i].Text();

    const double wpm = NumericValue(txtWPM.Text());
    const double tone = NumericValue(txtTone.Text());
    if (wpm != cw.giCWWPM || tone != cw.giCWTone || cw.glCWVolume != HScroll1.Value()) {
        cw.giCWWPM = ToInt16(wpm);
        cw.giCWTone = ToInt16(tone);
        cw.glCWVolume = HScroll1.Value();
        // Without one the first send makes it.
        if (frmCWTX.Loaded() && frmCWTX->CWBuffer) frmCWTX->DanLydBuffer();
    }
    cw.gsCWRSTFormat = optRST[0].Value() ? kReportInFigures : kReportWithN;
    cw.gsCWNummerFormat = optLobenr[0].Value() ? kNumberWithZeros : kNumberWithT;

    GemCWIndstillinger();
    // Nothing here has changed the equipment; it is stored with every OK all the same.
    GemUdstyr();
    SetCwMenuTekster();
    Unload();
}

}  // namespace vatro
