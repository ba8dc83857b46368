// SPDX-License-Identifier: MIT
//
// Name and version of the program, and what it is.
#pragma once

#include "forms.h"

namespace vatro {

class FrmAbout : public Form {
public:
    FrmAbout();
    Label lblTitle;
    Label lblVersion;
    Label lblDescription;
    Button cmdOK;
};

inline FormSlot<FrmAbout> frmAbout{"frmAbout"};

}  // namespace vatro
