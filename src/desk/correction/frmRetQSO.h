// SPDX-License-Identifier: MIT
//
// Correction of a logged contact. While the window is open the contact counts for nothing: it is withdrawn from points and
// marks before the window opens, and "&Log" counts it again as it then stands. "&Annuller" does not: the counters come right
// at the next load, as operators who look at a contact and leave it have always seen.
#pragma once

#include "forms.h"

namespace vatro {

class FrmRetQSO : public Form {
public:
    FrmRetQSO();
    /// Time, call, report sent, number sent, report received, number received.
    TextBox Text1[6];
    /// Points; disabled for a duplicate.
    ComboBox Combo2;
    /// The multiplier as computed last; "&Log" computes it again.
    TextBox Text3;
    /// Operator.
    ComboBox Combo1;
    CheckBox Check1;
    ComboBox cboMode;
    TextBox txtDato;
    Button Command1;
    Button Command2;
    Button cmdBeregn;
    StatusBar sbStatusBar;
    /// The names of the fields.
    Label Label1[9];

    /// Shows the fields of a contact line.
    void Fill(std::string_view line);
    /// Sets gbDupe for gsCall, against the lines above the one being corrected; see CheckDupQSO.
    void NoteDuplicateAbove();

    void StoreState() override;

private:
    void Text1_LostFocus();
    void Command1_Click();
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
