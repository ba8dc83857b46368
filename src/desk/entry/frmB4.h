// SPDX-License-Identifier: MIT
//
// The earlier contacts whose call contains what has been typed so far.
#pragma once

#include "forms.h"

namespace vatro {

class FrmB4 : public Form {
public:
    FrmB4();
    /// Filled by WkdB4; fills the window.
    ListBox List1;

    void Form_Load() override;
    void StoreState() override;
};

inline FormSlot<FrmB4> frmB4{"frmB4"};

}  // namespace vatro
