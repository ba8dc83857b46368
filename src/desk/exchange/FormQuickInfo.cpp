// SPDX-License-Identifier: MIT
#include "exchange/FormQuickInfo.h"

namespace vatro {

FormQuickInfo::FormQuickInfo() : Form("FormQuickInfo", FormKind::FixedTool, "Quick Info"), Image1(*this, "Image1", "quickinfo.png") {
    Image1.Click = [this] { Hide(); };
}

void FormQuickInfo::Form_KeyPress(KeyCode& KeyAscii) {
    if (KeyAscii == kEsc) Hide();
}

}  // namespace vatro
