// SPDX-License-Identifier: MIT
#include "entry/frmContestCall.h"
#include "frame/state.h"

#include "entry/fitted_label.h"
#include "frame/settings.h"
#include "frame/station.h"

namespace vatro {

namespace {

constexpr WindowPlace kPlace{"Call", 0, 0, 1000, 3000};

}  // namespace

FrmContestCall::FrmContestCall()
    : Form("frmContestCall", FormKind::Tool, "Contest Call"), Label1(*this, "Label1", "", {"Arial", 48, true}) {
    Label1.Change = [this] { FitWidth(*this, Label1); };
}

void FrmContestCall::visContestCall() {
    ShowNormal(Label1, desk().gsMyCall);
}

void FrmContestCall::Form_Load() {
    visContestCall();
    RestorePlace(*this, kPlace);
    Form_Resize();
}

void FrmContestCall::StoreState() {
    StorePlace(*this, kPlace);
}

void FrmContestCall::Form_Resize() {
    FitText(*this, Label1);
}

}  // namespace vatro
