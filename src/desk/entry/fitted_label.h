// SPDX-License-Identifier: MIT
//
// Helpers for the windows that show one text in letters as high as the window.
#pragma once

#include "forms.h"

namespace vatro {

/// Sets the size of the label's font so that the text fills the height of the window, then makes the window a little wider than the
/// text.
void FitText(Form& form, Label& label);
/// Adapts the width of the window after its text has changed.
void FitWidth(Form& form, const Label& label);
/// Shows the text in black on the window's own background.
void ShowNormal(Label& label, std::string_view text);

}  // namespace vatro
