// SPDX-License-Identifier: MIT
//
// The start information for the operators about rules and papers. It is shown at each start until the operator switches it off.
#pragma once

#include "forms.h"

namespace vatro {

class FrmVisTekst : public Form {
public:
    FrmVisTekst();
    TextView text;
    /// Whether the text is shown at the next start. Only closeButton copies this to gbVisInfo.
    CheckBox showAgain;
    Button closeButton;

    void Form_Load() override;
};

inline FormSlot<FrmVisTekst> frmVisTekst{"frmVisTekst"};

/// Shows the start information modally.
void VisStartInfo();

}  // namespace vatro
