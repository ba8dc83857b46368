// SPDX-License-Identifier: MIT
#include "entry/frmNytQSOnr.h"
#include "frame/state.h"

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
    Text1.SetText(PlainNumber(desk().log.giQSOnr));
    UpDown1.SetMin(desk().log.giQSOnr);
}

void FrmNytQSOnr::Command1_Click() {
    const double newNumber = NumericValue(Text1.Text());
    if (newNumber < desk().log.giQSOnr) {
        MsgBox(std::string("Nyt QSOnummer skal være større end "_t) + PlainNumber(desk().log.giQSOnr));
        Text1.SetText(PlainNumber(desk().log.giQSOnr));
        Text1.SetFocus();
        return;
    }
    desk().log.giQSOnr = ToInt16(newNumber);
    Hide();
}

void ChangeNextNumber() {
    frmNytQSOnr->ShowModal();
    frmMain->fields[3].SetText(ZeroPadded(desk().log.giQSOnr, 4));
    frmQSOnr->visQSOnr();
}

}  // namespace vatro
