// SPDX-License-Identifier: MIT
//
// The window that shows the station's own call, in letters that fill the window.
#pragma once

#include "forms.h"

namespace vatro {

class FrmContestCall : public Form {
public:
    FrmContestCall();
    Label call;

    /// Shows gsMyCall.
    void visContestCall();

    void Form_Load() override;
    void StoreState() override;
    void Form_Resize() override;
};

inline FormSlot<FrmContestCall> frmContestCall{"frmContestCall"};

}  // namespace vatro
