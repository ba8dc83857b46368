// SPDX-License-Identifier: MIT
//
// The window that shows which files are being copied. In spite of its name it also serves the backup to a directory.
#pragma once

#include "forms.h"

namespace vatro {

class FrmTilFloppy : public Form {
public:
    FrmTilFloppy();
    ListBox copiedFiles;
};

inline FormSlot<FrmTilFloppy> frmTilFloppy{"frmTilFloppy"};

}  // namespace vatro
