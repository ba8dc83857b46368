// SPDX-License-Identifier: MIT
//
// Notes: lines of free text in the log, in their place among the contacts. A note can be reworded, never removed.
#pragma once

#include "forms.h"

namespace vatro {

/// Asks for the text. OK hides the window and leaves the text in it; Annuller empties it, by which the callers know that
/// nothing is wanted.
class FrmNote : public Form {
public:
    FrmNote();
    /// At most 80 characters.
    TextBox note;
    Button okButton;
    Button cancelButton;
};

inline FormSlot<FrmNote> frmNote{"frmNote"};

/// Asks for a note and appends it to the log. The text of the last one stands in the window, selected.
void InsertNote();
/// Asks for another wording of the note that is selected in the log.
void CorrectNote();

}  // namespace vatro
