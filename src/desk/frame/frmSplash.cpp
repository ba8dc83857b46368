// SPDX-License-Identifier: MIT
#include "frame/frmSplash.h"

#include "codepage.h"
#include "frame/version.h"

namespace vatro {

using namespace literals;

FrmSplash::FrmSplash() : Form("frmSplash", FormKind::Splash, "Vatro") {
    version.SetCaption("Version " + VersionText());
    warning.SetCaption("Advarsel! Dette er et Windows program."_t);
}

void FrmSplash::ShowStage(std::string_view stage) {
    loadStage.SetCaption(stage);
    Refresh();
}

}  // namespace vatro
