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
      Combo1(*this, "Combo1", ComboStyle::DropDownList),
      Command1(*this, "Command1", "&Annuller"),
      Command2(*this, "Command2", "&OK") {
    Command1.isCancel = true;
    SetTabOrder({&Combo1, &Command2, &Command1});
    Command2.Click = [this] {
        desk().gsUTC = Combo1.Text();
        StoreSetting(setting::kUtc, desk().gsUTC);
        Hide();
    };
    Command1.Click = [this] { Hide(); };
}

void FrmUTC::Form_Load() {
    for (int hours = kFirst; hours <= kLast; ++hours) Combo1.AddItem(PlainNumber(hours));
    Combo1.SetListIndex(ToInt16(NumericValue(desk().gsUTC) - kFirst));
}

void ChangeUtcOffset() {
    frmUTC->ShowModal();
    frmMain->fields[0].SetText(UtcTimeText());
}

}  // namespace vatro
