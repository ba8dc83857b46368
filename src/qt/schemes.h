// SPDX-License-Identifier: MIT
//
// The colour schemes of the program's own, beside that of the desktop, which is light or dark.
#pragma once

#include <QPalette>

namespace vatro {

enum class Scheme { Desktop, Sun, Night };

/// Black on white.
QPalette SunPalette();
/// Dim red on black, which leaves the eyes used to the dark. Text is the brightest; captions, then frames, then what is disabled follow.
QPalette NightPalette();

/// Shows the whole program in this scheme, with edges of fields that can be seen, and broad frames in those of the program's own.
void UseScheme(Scheme scheme);

}  // namespace vatro
