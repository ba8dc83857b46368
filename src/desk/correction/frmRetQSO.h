// SPDX-License-Identifier: MIT
//
// Correction of a logged contact. While the window is open the contact counts for nothing: it is withdrawn from points and marks
// before the window opens, and "&Log" counts the corrected contact. "&Annuller" (Cancel) does not count it again; the next load of
// the log does. Keep this: operators who look at a contact and leave it see the numbers that they have always seen (docs/rules.md).
#pragma once

#include "entry/qso_fields.h"
#include "forms.h"

namespace vatro {

class FrmRetQSO : public Form {
public:
    FrmRetQSO();
    /// The fields of the contact; ContactField gives the index of each.
    ContactFields fields;
    /// The points to choose; disabled for a duplicate.
    ComboBox pointBox;
    /// Shows the multiplier computed last; "&Log" computes it again.
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
    /// The labels beside the fields.
    Label fieldLabels[9];

    /// Fills the controls from a contact line.
    void Fill(std::string_view line);
    /// Sets gbDupe: whether gsCall is a duplicate of a line above the one being corrected; see CheckDupQSO.
    void RecordDuplicateAbove();

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

/// Corrects the line that is selected in the log; a note opens the form for notes. Does nothing if the log is empty.
void CorrectLine();

}  // namespace vatro
