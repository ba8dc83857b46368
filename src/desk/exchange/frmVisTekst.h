// SPDX-License-Identifier: MIT
//
// The start information: what the operators are told about rules and papers, at each start until they have enough of it.
#pragma once

#include "forms.h"

namespace vatro {

class FrmVisTekst : public Form {
public:
    FrmVisTekst();
    TextView text;
    /// Whether the text comes at the next start; closeButton takes it over into gbVisInfo, nothing else does.
    CheckBox showAgain;
    Button closeButton;

    void Form_Load() override;
};

inline FormSlot<FrmVisTekst> frmVisTekst{"frmVisTekst"};

/// Shows the start information modally.
void VisStartInfo();

}  // namespace vatro
