// SPDX-License-Identifier: MIT
//
// What the entries of the menu bar do. This is the one page that knows every window and paper of the program.
#pragma once

#include "entry/frmMain.h"

namespace vatro {

/// Gives every entry of the menu bar its click.
void BindMenu(FrmMain& main);

/// Ticks the contest class in the menu; a class that is neither A nor B leaves the ticks.
void ShowContestClass(FrmMain& main);

}  // namespace vatro
