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
      lblTitle(*this, "lblTitle", "Vatro", {{}, kTitlePoints, true}),
      lblVersion(*this, "lblVersion", "Version " + VersionText()),
      lblDescription(*this, "lblDescription", "Log til HF Field Day i EDR's lokalafdelinger.\nFri software under MIT-licensen."_t),
      cmdOK(*this, "cmdOK", "&OK") {
    cmdOK.isDefault = true;
    cmdOK.isCancel = true;
    SetTabOrder({&cmdOK});
    cmdOK.Click = [this] { Unload(); };
}

}  // namespace vatro
