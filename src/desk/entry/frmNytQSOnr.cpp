// SPDX-License-Identifier: MIT
#include "entry/frmNytQSOnr.h"

#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "frame/log_file.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

FrmNytQSOnr::FrmNytQSOnr()
    : Form("frmNytQSOnr", FormKind::FixedDialog, "Nyt QSO nummer"),
      Text1(*this, "Text1"),
      UpDown1(*this, "UpDown1", Text1, {.min = 0, .max = 9999, .step = 1}),
      Command1(*this, "Command1", "&OK"),
      Command2(*this, "Command2", "&Annuller") {
    Text1.SetMaxLength(4);
    Command1.isDefault = true;
    Command2.isCancel = true;
    SetTabOrder({&Text1, &Command1, &Command2});
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Hide(); };
}

void FrmNytQSOnr::Form_Load() {
    Text1.SetText(PlainNumber(giQSOnr));
    UpDown1.SetMin(giQSOnr);
}

void FrmNytQSOnr::Command1_Click() {
    const double newNumber = NumericValue(Text1.Text());
    if (newNumber < giQSOnr) {
        MsgBox(std::string("Nyt QSOnummer skal være større end "_t) + PlainNumber(giQSOnr));
        Text1.SetText(PlainNumber(giQSOnr));
        Text1.SetFocus();
        return;
    }
    giQSOnr = ToInt16(newNumber);
    Hide();
}

void ChangeNextNumber() {
    frmNytQSOnr->ShowModal();
    frmMain->Text1[3].SetText(ZeroPadded(giQSOnr, 4));
    frmQSOnr->visQSOnr();
}

}  // namespace vatro
