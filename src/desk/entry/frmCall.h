// SPDX-License-Identifier: MIT
//
// The contest call and the telephone number for the summary.
#pragma once

#include "forms.h"

namespace vatro {

/// Offers the society's stations as portable calls, read once per run; a missing edr.txt is a failure. OK stores the call at
/// once; the telephone number is stored at the end of the program.
class FrmCall : public Form {
public:
    FrmCall();
    ComboBox callBox;
    Label telephoneLabel;
    TextBox telephone;
    Button cancelButton;
    Button okButton;

    void Form_Load() override;

private:
    void ShowValues();
};

inline FormSlot<FrmCall> frmCall{"frmCall"};

/// Asks for the contest call and shows the one that holds in the caption and the window of the call.
void ChangeContestCall();

}  // namespace vatro
