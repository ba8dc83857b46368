// SPDX-License-Identifier: MIT
//
// The window shown while the sound card is being released.
#pragma once

#include "codepage.h"
#include "forms.h"

namespace vatro {

class FrmAfslut : public Form {
public:
    FrmAfslut() : Form("frmAfslut", FormKind::Splash, "Vatro") {}
    Label waitNotice{*this, "Label1", "Vent et øjeblik..."_t};
    Label endNotice{*this, "lblAfslut", "Vatro afsluttes!"};
};

inline FormSlot<FrmAfslut> frmAfslut{"frmAfslut"};

}  // namespace vatro
