// SPDX-License-Identifier: MIT
//
// Notes: lines of free text in the log, in their place among the contacts. A note can be reworded but not removed: an operator who
// presses Enter in an empty box by mistake would lose it (docs/rules.md).
#pragma once

#include "forms.h"

namespace vatro {

/// The dialogue for the text. OK hides the window and leaves the text in it. Annuller (Cancel) empties the text, which tells the
/// callers to do nothing.
class FrmNote : public Form {
public:
    FrmNote();
    /// The text; at most 80 characters.
    TextBox note;
    Button okButton;
    Button cancelButton;
};

inline FormSlot<FrmNote> frmNote{"frmNote"};

/// Asks for a note and appends it to the log. The window first shows the text of the last note, selected.
void InsertNote();
/// Asks for a new text for the note that is selected in the log.
void CorrectNote();

}  // namespace vatro
