// SPDX-License-Identifier: MIT
//
// The window that is shown while the tables load.
#pragma once

#include "forms.h"

namespace vatro {

class FrmSplash : public Form {
public:
    FrmSplash();
    /// What is being loaded.
    Label Label1{*this, "Label1"};
    Label lblVersion{*this, "lblVersion"};
    Label lblWarning{*this, "lblWarning"};

    /// Shows the stage of the loading at once.
    void ShowStage(std::string_view stage);
};

inline FormSlot<FrmSplash> frmSplash{"frmSplash"};

}  // namespace vatro
