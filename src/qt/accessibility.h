// SPDX-License-Identifier: MIT
//
// Corrects how some widgets present themselves to screen readers, where Qt's default would be misleading: a combo box is announced by
// its name, not only by its text; an option is announced as one of several, although the control, not Qt, turns the others off; a
// caption is announced as text, and a frame as a group with the name of its caption.
#pragma once

namespace vatro {

/// Call once, after QApplication has been created.
void InstallAccessibility();

}  // namespace vatro
