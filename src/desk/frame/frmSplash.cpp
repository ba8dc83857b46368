// SPDX-License-Identifier: MIT
#include "frame/frmSplash.h"

#include "codepage.h"
#include "frame/start.h"

namespace vatro {

using namespace literals;

FrmSplash::FrmSplash() : Form("frmSplash", FormKind::Splash, "Vatro") {
    lblVersion.SetCaption("Version " + VersionTekst());
    lblWarning.SetCaption("Advarsel! Dette er et Windows program."_t);
}

void FrmSplash::Vis(std::string_view trin) {
    Label1.SetCaption(trin);
    Refresh();
}

}  // namespace vatro
