// SPDX-License-Identifier: MIT
#include "printing/frmInfo.h"

namespace vatro {

FrmInfo::FrmInfo() : Form("frmInfo", FormKind::Tool, ""), steps(*this, "List1", {"Fixedsys", 9}), closeButton(*this, "cmdLuk", "&Luk") {
    closeButton.isDefault = true;
    closeButton.isCancel = true;
    SetTabOrder({&steps, &closeButton});
    closeButton.Click = [this] { Unload(); };
}

}  // namespace vatro
