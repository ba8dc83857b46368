// SPDX-License-Identifier: MIT
//
// The offset from local to universal time.
#pragma once

#include "forms.h"

namespace vatro {

/// A list of whole hours; OK stores the choice at once. An offset that is not in the list makes the loading fail.
class FrmUTC : public Form {
public:
    FrmUTC();
    ComboBox offsetBox;
    Button cancelButton;
    Button okButton;

    void Form_Load() override;
};

inline FormSlot<FrmUTC> frmUTC{"frmUTC"};

/// Asks for the offset and shows the time that goes with it, also after Annuller.
void ChangeUtcOffset();

}  // namespace vatro
