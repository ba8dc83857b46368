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
      number(*this, "Text1"),
      arrows(*this, "UpDown1", number, {.min = 0, .max = 9999, .step = 1}),
      okButton(*this, "Command1", "&OK"),
      cancelButton(*this, "Command2", "&Annuller") {
    number.SetMaxLength(4);
    okButton.isDefault = true;
    cancelButton.isCancel = true;
    SetTabOrder({&number, &okButton, &cancelButton});
    okButton.Click = [this] { TakeNumber(); };
    cancelButton.Click = [this] { Hide(); };
}

void FrmNytQSOnr::Form_Load() {
    number.SetText(PlainNumber(desk().log.giQSOnr));
    arrows.SetMin(desk().log.giQSOnr);
}

void FrmNytQSOnr::TakeNumber() {
    const double newNumber = NumericValue(number.Text());
    if (newNumber < desk().log.giQSOnr) {
        MsgBox(std::string("Nyt QSOnummer skal være større end "_t) + PlainNumber(desk().log.giQSOnr));
        number.SetText(PlainNumber(desk().log.giQSOnr));
        number.SetFocus();
        return;
    }
    desk().log.giQSOnr = ToInt16(newNumber);
    Hide();
}

void ChangeNextNumber() {
    frmNytQSOnr->ShowModal();
    frmMain->fields[kNumberSentField].SetText(ZeroPadded(desk().log.giQSOnr, 4));
    frmQSOnr->visQSOnr();
}

}  // namespace vatro
