// SPDX-License-Identifier: MIT
#include "entry/frmUTC.h"
#include "frame/state.h"

#include "entry/frmMain.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr int kFirst = -11;
constexpr int kLast = 12;

}  // namespace

FrmUTC::FrmUTC()
    : Form("frmUTC", FormKind::FixedDialog, "UTC offset"),
      offsetBox(*this, "Combo1", ComboStyle::DropDownList),
      cancelButton(*this, "Command1", "&Annuller"),
      okButton(*this, "Command2", "&OK") {
    cancelButton.isCancel = true;
    SetTabOrder({&offsetBox, &okButton, &cancelButton});
    okButton.Click = [this] {
        desk().gsUTC = offsetBox.Text();
        StoreSetting(setting::kUtc, desk().gsUTC);
        Hide();
    };
    cancelButton.Click = [this] { Hide(); };
}

void FrmUTC::Form_Load() {
    for (int hours = kFirst; hours <= kLast; ++hours) offsetBox.AddItem(PlainNumber(hours));
    offsetBox.SetListIndex(ToInt16(NumericValue(desk().gsUTC) - kFirst));
}

bool FrmUTC::OffsetIsListed() {
    if (!IsNumeric(desk().gsUTC)) return false;
    const double offset = NumericValue(desk().gsUTC);
    return offset >= kFirst && offset <= kLast;
}

void ChangeUtcOffset() {
    frmUTC->ShowModal();
    frmMain->fields[kUtcField].SetText(UtcTimeText());
}

}  // namespace vatro
