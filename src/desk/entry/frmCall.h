// SPDX-License-Identifier: MIT
//
// The dialogue for the contest call and for the telephone number on the summary.
#pragma once

#include "forms.h"

namespace vatro {

/// Offers the calls of the society's stations with "/P". They are read once per run; a missing edr.txt is a failure. OK stores the
/// call at once; the telephone number is stored at the end of the program. Here Command1 is Cancel, while in most forms it is OK.
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

/// Asks for the contest call, then shows gsMyCall in the caption of the main form and in frmContestCall.
void ChangeContestCall();

}  // namespace vatro
