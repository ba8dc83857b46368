// SPDX-License-Identifier: MIT
#include "exchange/FormQuickInfo.h"

namespace vatro {

FormQuickInfo::FormQuickInfo() : Form("FormQuickInfo", FormKind::FixedTool, "Quick Info"), picture(*this, "Image1", "quickinfo.png") {
    picture.Click = [this] { Hide(); };
}

void FormQuickInfo::Form_KeyPress(KeyCode& KeyAscii) {
    if (KeyAscii == kEsc) Hide();
}

}  // namespace vatro
