// SPDX-License-Identifier: MIT
#include "keyer/frmCW.h"

#include <algorithm>

#include "codepage.h"
#include "entry/keys.h"
#include "exchange/equipment.h"
#include "frame/state.h"
#include "keyer/frmCWTX.h"
#include "keyer/keyer_settings.h"
#include "keyer/texts.h"
#include "morse/text_codes.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

// The 4 occurs twice, the first time out of order; only the set of characters matters.
constexpr std::string_view kTextCharacters = " ABCDEFGHIJKLMNOPQRSTUVWXYZÆØÅ12434567890/#?,.-:()="_t;

/// The default texts, offered by a button. The defaults of a first start (settings_table.h) lack the last two of these: a new station
/// gets only the texts that every contact needs.
constexpr std::array<std::string_view, kCwTextCount> kDefaultTexts{"CQ TEST DE #R #R TEST K", "CL?",   "#R",
                                                                   "#C UR #T #N BK",          "TU #R", "#C?"};

/// Makes new pieces if the sound changes. Fails with 6 if speed or pitch exceeds 16 bits; failures of DanLydBuffer are not caught.
void SetSound(double wpm, double tone, std::int32_t volume) {
    KeyerState& cw = desk().cw;
    if (wpm == cw.giCWWPM && tone == cw.giCWTone && volume == cw.glCWVolume) return;
    cw.giCWWPM = ToInt16(wpm);
    cw.giCWTone = ToInt16(tone);
    cw.glCWVolume = volume;
    // If there is no buffer yet, the first send makes it.
    if (frmCWTX.Loaded() && frmCWTX->CWBuffer) frmCWTX->DanLydBuffer();
}

}  // namespace

FrmCW::FrmCW()
    : Form("frmCW", FormKind::Dialog, "CW indstillinger"),
      textsFrame(*this, "Frame2", "Tekster:"),
      textLabels{{*this, "Label2", 0, "F&5:", &texts[0]},       {*this, "Label2", 1, "F&6:", &texts[1]},
                 {*this, "Label2", 2, "F&7:", &texts[2]},       {*this, "Label2", 3, "F&8:", &texts[3]},
                 {*this, "Label2", 4, "Shift+F&5:", &texts[4]}, {*this, "Label2", 5, "Shift+F&6:", &texts[5]},
                 {*this, "Label2", 6, "Shift+F&7:", &texts[6]}, {*this, "Label2", 7, "Shift+F&8:", &texts[7]}},
      texts{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3},
            {*this, "Text1", 4}, {*this, "Text1", 5}, {*this, "Text1", 6}, {*this, "Text1", 7}},
      codesFrame(*this, "Frame1", "#-Koder: "),
      codeLabels{{*this, "Label1", 0, "#C: Call-feltets indhold"},
                 {*this, "Label1", 1, "#N: Løbenummer"_t},
                 {*this, "Label1", 2, "#R: Contest call"},
                 {*this, "Label1", 3, "#T: RST sendt"}},
      soundFrame(*this, "Frame3", "&CW", &speed),
      speedLabel(*this, "Label6", -1, "&WPM:", &speed),
      speed(*this, "txtWPM"),
      speedArrows(*this, "UpDown2", speed, {.min = 6, .max = 60, .step = 2}),
      pitchLabel(*this, "Label7", -1, "&Tone:", &pitch),
      pitch(*this, "txtTone"),
      pitchArrows(*this, "UpDown1", pitch, {.min = 300, .max = 1800, .step = 25}),
      volumeLabel(*this, "Label11", "Min    Volume   Max"),
      volume(*this, "HScroll1", {.min = 0, .max = 10000, .smallChange = 1, .largeChange = 1023}),
      reportFrame(*this, "Frame4", "&RST format:", &reportOptions[0]),
      reportOptions{{*this, "optRST", 0, "5&99", reportFrame}, {*this, "optRST", 1, "5&nn", reportFrame}},
      numberFrame(*this, "Frame5", "Løbenummer format:"_t),
      numberOptions{{*this, "optLobenr", 0, "&001/1000", numberFrame}, {*this, "optLobenr", 1, "&--1/1000", numberFrame}},
      resetButton(*this, "cmdReset", "&Default tekster"),
      okButton(*this, "cmdOK", "&OK"),
      cancelButton(*this, "cmdAnnuller", "Annuller") {
    okButton.isDefault = true;
    cancelButton.isCancel = true;
    std::vector<Control*> order;
    for (TextBox& field : texts) {
        order.push_back(&field);
        field.KeyFilter = [](KeyCode& key) {
            key = UpperKey(key);
            FilterKey(key, kTextCharacters);
        };
    }
    order.insert(order.end(), {&speed, &pitch, &volume, &reportOptions[0], &reportOptions[1], &numberOptions[0], &numberOptions[1]});
    order.insert(order.end(), {&resetButton, &okButton, &cancelButton});
    SetTabOrder(order);
    tabSelects = true;
    resetButton.Click = [this] { cmdReset_Click(); };
    okButton.Click = [this] { cmdOK_Click(); };
    cancelButton.Click = [this] { Unload(); };
}

void FrmCW::Form_Load() {
    const KeyerState& cw = desk().cw;
    speed.SetText(PlainNumber(cw.giCWWPM));
    pitch.SetText(PlainNumber(cw.giCWTone));
    volume.SetValue(std::clamp<int>(cw.glCWVolume, volume.Limits().min, volume.Limits().max));
    numberOptions[cw.gsCWNummerFormat == kNumberWithZeros ? 0 : 1].SetValue(true);
    reportOptions[cw.gsCWRSTFormat == kReportInFigures ? 0 : 1].SetValue(true);
    for (std::size_t i = 0; i < kCwTextCount; ++i) texts[i].SetText(cw.CWTekster[i]);
}

void FrmCW::cmdReset_Click() {
    MessageBox question;
    question.text = "Er du sikker på at du vil ændre teksterne?"_t;
    question.title = "Default tekster";
    question.buttons = Buttons::YesNo;
    question.icon = Icon::Question;
    question.defaultNo = true;
    if (MsgBox(question) == Answer::No) return;
    for (std::size_t i = 0; i < kCwTextCount; ++i) texts[i].SetText(kDefaultTexts[i]);
}

void FrmCW::cmdOK_Click() {
    KeyerState& cw = desk().cw;
    for (std::size_t i = 0; i < kCwTextCount; ++i) cw.CWTekster[i] = texts[i].Text();

    SetSound(NumericValue(speed.Text()), NumericValue(pitch.Text()), volume.Value());
    cw.gsCWRSTFormat = reportOptions[0].Value() ? kReportInFigures : kReportWithN;
    cw.gsCWNummerFormat = numberOptions[0].Value() ? kNumberWithZeros : kNumberWithT;

    GemCWIndstillinger();
    // The equipment is stored too, although it cannot be changed here.
    GemUdstyr();
    SetCwMenuTekster();
    Unload();
}

void ChangeCwSpeed(int wpm) {
    const KeyerState& cw = desk().cw;
    SetSound(wpm, cw.giCWTone, cw.glCWVolume);
    GemCWIndstillinger();
}

}  // namespace vatro
