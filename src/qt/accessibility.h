// SPDX-License-Identifier: MIT
//
// How the widgets present themselves to a screen reader where Qt's own way would mislead it: a combo box by its name and not by
// its text alone, an option as one of several although its control turns the others off, a caption as text.
#pragma once

namespace vatro {

/// Once, after QApplication has been made.
void InstallAccessibility();

}  // namespace vatro
