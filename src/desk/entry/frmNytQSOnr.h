// SPDX-License-Identifier: MIT
//
// The dialogue that sets the serial number of the next contact by hand: after a pause, or when two stations share a series.
#pragma once

#include "forms.h"

namespace vatro {

/// OK stores the number in giQSOnr and hides the window. A number lower than giQSOnr is refused. An equal one is accepted, although the
/// message says "større end" (greater than); operators know that message from the handbook (docs/rules.md).
class FrmNytQSOnr : public Form {
public:
    FrmNytQSOnr();
    TextBox number;
    UpDown arrows;
    Button okButton;
    Button cancelButton;

    /// Runs only when the window is first opened: after use it is only hidden and keeps its number and limit.
    void Form_Load() override;

private:
    void TakeNumber();
};

inline FormSlot<FrmNytQSOnr> frmNytQSOnr{"frmNytQSOnr"};

/// Asks for the number and shows the resulting one.
void ChangeNextNumber();

}  // namespace vatro
