// SPDX-License-Identifier: MIT
//
// The serial number of the next contact, set by hand: after a pause, or when two stations share a series.
#pragma once

#include "forms.h"

namespace vatro {

/// OK takes the number over into giQSOnr and hides the window; a lower number than the present one is refused, although the
/// message says that an equal one is too.
class FrmNytQSOnr : public Form {
public:
    FrmNytQSOnr();
    TextBox number;
    UpDown arrows;
    Button okButton;
    Button cancelButton;

    /// Only at the first opening of a run: the window is hidden after use, and keeps number and limit.
    void Form_Load() override;

private:
    void TakeNumber();
};

inline FormSlot<FrmNytQSOnr> frmNytQSOnr{"frmNytQSOnr"};

/// Asks for the number and shows the one that holds.
void ChangeNextNumber();

}  // namespace vatro
