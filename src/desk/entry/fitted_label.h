// SPDX-License-Identifier: MIT
//
// The windows with one text in letters as large as the window is high.
#pragma once

#include "forms.h"

namespace vatro {

/// The label's font becomes as many points high as the room of the window, and the window a little wider than its text.
void FitText(Form& form, Label& label);
/// The text has changed: the window follows it in width.
void FitWidth(Form& form, const Label& label);
/// Black on the window's own ground.
void ShowNormal(Label& label, std::string_view text);

}  // namespace vatro
