// SPDX-License-Identifier: MIT
//
// Radio and antenna of each band, for the summary.
#pragma once

#include <array>
#include <string>

#include "forms.h"

namespace vatro {

/// Reads the ten keys of section "Equipment".
void HentUdstyr();
/// Writes them: all radios, then all antennas.
void GemUdstyr();

/// Asks for the ten texts of at most 15 characters.
class FormRigAnt : public Form {
public:
    FormRigAnt();
    Frame rigFrame;
    TextBox rigs[5];
    Frame antennaFrame;
    TextBox antennas[5];
    Button okButton;
    Button cancelButton;
    /// The bands beside the fields, radios first.
    Label bandLabels[10];

    void Form_Load() override;

private:
    void CommandOK_Click();
};

inline FormSlot<FormRigAnt> formRigAnt{"FormRigAnt"};

}  // namespace vatro
