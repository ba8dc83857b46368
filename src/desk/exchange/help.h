// SPDX-License-Identifier: MIT
//
// Opens the handbook.
#pragma once

namespace vatro {

/// Opens the handbook at its table of contents. Shows a message if the program has no handbook or the viewer fails.
void ShowHelpContents();

}  // namespace vatro
