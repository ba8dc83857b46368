// SPDX-License-Identifier: MIT
//
// The box with the name, version and purpose of the program.
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
