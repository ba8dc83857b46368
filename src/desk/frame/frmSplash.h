// SPDX-License-Identifier: MIT
//
// The window that is shown while the tables load.
#pragma once

#include "forms.h"

namespace vatro {

class FrmSplash : public Form {
public:
    FrmSplash();
    /// Says what is being loaded.
    Label loadStage{*this, "Label1"};
    Label version{*this, "lblVersion"};
    Label warning{*this, "lblWarning"};

    /// Shows the current stage of loading at once.
    void ShowStage(std::string_view stage);
};

inline FormSlot<FrmSplash> frmSplash{"frmSplash"};

}  // namespace vatro
