// SPDX-License-Identifier: MIT
#include "entry/frmContestCall.h"

#include "entry/fitted_label.h"
#include "frame/settings.h"
#include "frame/station.h"

namespace vatro {

namespace {

constexpr Vinduesplads kPlads{"Call", 0, 0, 1000, 3000};

}  // namespace

FrmContestCall::FrmContestCall()
    : Form("frmContestCall", FormKind::Tool, "Contest Call"), Label1(*this, "Label1", "", {"Arial", 48, true}) {
    Label1.Change = [this] { TilpasBredde(*this, Label1); };
}

void FrmContestCall::visContestCall() {
    VisNormal(Label1, gsMyCall);
}

void FrmContestCall::Form_Load() {
    visContestCall();
    HentPlads(*this, kPlads);
    Form_Resize();
}

void FrmContestCall::StoreState() {
    GemPlads(*this, kPlads);
}

void FrmContestCall::Form_Resize() {
    TilpasTekst(*this, Label1);
}

}  // namespace vatro
