// SPDX-License-Identifier: MIT
//
// Name and version of the program, and what it is.
#pragma once

#include "forms.h"

namespace vatro {

class FrmAbout : public Form {
public:
    FrmAbout();
    Label title;
    Label version;
    Label description;
    Button okButton;
};

inline FormSlot<FrmAbout> frmAbout{"frmAbout"};

}  // namespace vatro
