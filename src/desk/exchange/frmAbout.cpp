// SPDX-License-Identifier: MIT
#include "exchange/frmAbout.h"

#include "codepage.h"
#include "frame/version.h"

namespace vatro {

using namespace literals;

namespace {

constexpr double kTitlePoints = 20;

}  // namespace

FrmAbout::FrmAbout()
    : Form("frmAbout", FormKind::Dialog, "Om Vatro"),
      title(*this, "lblTitle", "Vatro", {{}, kTitlePoints, true}),
      version(*this, "lblVersion", "Version " + VersionText()),
      description(*this, "lblDescription", "Log til HF Field Day i EDR's lokalafdelinger.\nFri software under MIT-licensen."_t),
      okButton(*this, "cmdOK", "&OK") {
    okButton.isDefault = true;
    okButton.isCancel = true;
    SetTabOrder({&okButton});
    okButton.Click = [this] { Unload(); };
}

}  // namespace vatro
