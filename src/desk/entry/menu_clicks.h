// SPDX-License-Identifier: MIT
//
// The click handlers of the menu bar. Only menu_clicks.cpp knows every window and paper of the program.
#pragma once

#include "entry/frmMain.h"

namespace vatro {

/// Binds the click handler of every entry of the menu bar.
void BindMenu(FrmMain& main);

/// Ticks the contest class in the menu. If the class is neither A nor B, the ticks stay as they are.
void ShowContestClass(FrmMain& main);

}  // namespace vatro
