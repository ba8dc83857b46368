// SPDX-License-Identifier: MIT
#include "printing/frmInfo.h"

namespace vatro {

FrmInfo::FrmInfo() : Form("frmInfo", FormKind::Tool, ""), List1(*this, "List1", {"Fixedsys", 9}), cmdLuk(*this, "cmdLuk", "&Luk") {
    cmdLuk.isDefault = true;
    cmdLuk.isCancel = true;
    SetTabOrder({&List1, &cmdLuk});
    cmdLuk.Click = [this] { Unload(); };
}

}  // namespace vatro
