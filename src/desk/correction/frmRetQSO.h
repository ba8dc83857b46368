// SPDX-License-Identifier: MIT
//
// Correction of a logged contact. While the window is open the contact counts for nothing: it is withdrawn from points and
// marks before the window opens, and "&Log" counts it again as it then stands. "&Annuller" does not: the counters come right
// at the next load, as operators who look at a contact and leave it have always seen.
#pragma once

#include "entry/qso_fields.h"
#include "forms.h"

namespace vatro {

class FrmRetQSO : public Form {
public:
    FrmRetQSO();
    /// The fields of the contact; ContactField gives the index of each.
    ContactFields fields;
    /// Points; disabled for a duplicate.
    ComboBox pointBox;
    /// The multiplier as computed last; "&Log" computes it again.
    TextBox multiplierField;
    /// Operator.
    ComboBox operatorBox;
    CheckBox qsl;
    ComboBox modeBox;
    TextBox dateField;
    Button logButton;
    Button cancelButton;
    Button calculateButton;
    StatusBar statusBar;
    /// The names of the fields.
    Label fieldLabels[9];

    /// Shows the fields of a contact line.
    void Fill(std::string_view line);
    /// Sets gbDupe for gsCall, against the lines above the one being corrected; see CheckDupQSO.
    void NoteDuplicateAbove();

    void StoreState() override;

private:
    void CallLeft();
    void TakeCorrection();
    void Calculate();
    void ShowCalculated(std::string_view multiplier);
    void ShowDuplicate();
    bool CheckDate();
    void LogCorrection(const std::string& time);
};

inline FormSlot<FrmRetQSO> frmRetQSO{"frmRetQSO"};

/// Corrects the line that is selected in the log; a note goes to its own form. An empty log: nothing.
void CorrectLine();

}  // namespace vatro
