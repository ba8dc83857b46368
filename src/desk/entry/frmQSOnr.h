// SPDX-License-Identifier: MIT
//
// The window of the exchange to send - mode and report besides the number, in spite of its name - in letters that fill it. The user
// sets the height; the width follows the text. The text turns red for a duplicate.
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
