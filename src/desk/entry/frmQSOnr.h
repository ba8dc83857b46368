// SPDX-License-Identifier: MIT
//
// The window that shows the exchange to send: mode and report as well as the serial number, although its name says number only. The
// letters fill the window; the user sets the height, and the width follows the text. For a duplicate it shows a warning on red instead.
#pragma once

#include "forms.h"

namespace vatro {

class FrmQSOnr : public Form {
public:
    FrmQSOnr();
    Label exchange;

    /// Shows QSO mode, default report and the number of the next contact with at least three digits.
    void visQSOnr();
    /// Marks the contact being entered as a duplicate, until the next visQSOnr.
    void visDupe();

    void Form_Load() override;
    void StoreState() override;
    void Form_Resize() override;
};

inline FormSlot<FrmQSOnr> frmQSOnr{"frmQSOnr"};

}  // namespace vatro
