// SPDX-License-Identifier: MIT
//
// Tells which file is being copied; shown while the copying lasts.
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
