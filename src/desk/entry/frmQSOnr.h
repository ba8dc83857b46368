// SPDX-License-Identifier: MIT
//
// The exchange to send, in letters that fill the window: the user sets the height, the width follows the text. Red at a
// duplicate.
#pragma once

#include "forms.h"

namespace vatro {

class FrmQSOnr : public Form {
public:
    FrmQSOnr();
    Label exchange;

    /// Shows QSO mode, default report and the number of the next contact, at least three digits.
    void visQSOnr();
    /// Shows that the contact being entered is a duplicate, until the next visQSOnr.
    void visDupe();

    void Form_Load() override;
    void StoreState() override;
    void Form_Resize() override;
};

inline FormSlot<FrmQSOnr> frmQSOnr{"frmQSOnr"};

}  // namespace vatro
