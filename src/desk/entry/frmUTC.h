// SPDX-License-Identifier: MIT
//
// The dialogue for the offset from local to universal time.
#pragma once

#include "forms.h"

namespace vatro {

/// Offers whole hours from -11 to 12; OK stores the choice at once. If the current offset is not in the list, loading the form fails with
/// 5. Here Command1 is Cancel, while in most forms it is OK.
class FrmUTC : public Form {
public:
    FrmUTC();
    ComboBox offsetBox;
    Button cancelButton;
    Button okButton;

    void Form_Load() override;

    /// Whether the current offset is in the list.
    static bool OffsetIsListed();
};

inline FormSlot<FrmUTC> frmUTC{"frmUTC"};

/// Asks for the offset, then shows the universal time by the current offset, even after Annuller (Cancel).
void ChangeUtcOffset();

}  // namespace vatro
