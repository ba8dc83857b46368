// SPDX-License-Identifier: MIT
#include "exchange/frmTilFloppy.h"

namespace vatro {

FrmTilFloppy::FrmTilFloppy()
    : Form("frmTilFloppy", FormKind::FixedDialog, "Kopierer log til diskette..."), copiedFiles(*this, "List1", {"Fixedsys", 9}) {
    SetTabOrder({&copiedFiles});
}

}  // namespace vatro
