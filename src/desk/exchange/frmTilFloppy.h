// SPDX-License-Identifier: MIT
//
// The window that says which file is being copied, while the copying lasts. In spite of its name it also serves the backup to a
// directory.
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
