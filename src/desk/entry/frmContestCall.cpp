// SPDX-License-Identifier: MIT
#include "entry/frmContestCall.h"
#include "frame/state.h"

#include "entry/fitted_label.h"
#include "frame/settings.h"
#include "frame/station.h"

namespace vatro {

FrmContestCall::FrmContestCall() : Form("frmContestCall", FormKind::Tool, "Contest Call"), call(*this, "Label1", "", {"Arial", 48, true}) {
    onlyShows = true;
    call.Change = [this] { FitWidth(*this, call); };
}

void FrmContestCall::visContestCall() {
    ShowNormal(call, desk().gsMyCall);
}

void FrmContestCall::Form_Load() {
    visContestCall();
    RestorePlace(*this, setting::kCallPlace);
    Form_Resize();
}

void FrmContestCall::StoreState() {
    StorePlace(*this, setting::kCallPlace);
}

void FrmContestCall::Form_Resize() {
    FitText(*this, call);
}

}  // namespace vatro
