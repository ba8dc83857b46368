// SPDX-License-Identifier: MIT
//
// What both window programs set up before anything is shown.
#pragma once

namespace vatro {

/// Names, icon, Danish words of Qt, fonts readable at arm's length, and that the program, not its last window, ends it. After QApplication.
void PrepareApplication();

}  // namespace vatro
