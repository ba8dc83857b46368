// SPDX-License-Identifier: MIT
//
// Radio and antenna of each band, for the summary.
#pragma once

#include <array>
#include <string>

#include "forms.h"

namespace vatro {

/// Reads the ten keys of the section "Equipment".
void HentUdstyr();
/// Writes the ten keys: all radios, then all antennas.
void GemUdstyr();

/// The dialogue for the ten texts, each of at most 15 characters. CommandLuk is Cancel, although "luk" means close.
class FormRigAnt : public Form {
public:
    FormRigAnt();
    Frame rigFrame;
    TextBox rigs[5];
    Frame antennaFrame;
    TextBox antennas[5];
    Button okButton;
    Button cancelButton;
    /// The band labels beside the fields, radios first.
    Label bandLabels[10];

    void Form_Load() override;
    /// While nothing has been changed.
    bool EscCloses() const override;

private:
    void CommandOK_Click();
};

inline FormSlot<FormRigAnt> formRigAnt{"FormRigAnt"};

}  // namespace vatro
