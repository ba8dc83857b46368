// SPDX-License-Identifier: MIT
//
// The handbook, as the program opens it.
#pragma once

namespace vatro {

/// Opens the handbook at its table of contents. Tells it if the program has none, or what the viewer failed at.
void ShowHelpContents();

}  // namespace vatro
