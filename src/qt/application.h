// SPDX-License-Identifier: MIT
//
// Preparations that both window programs make before anything is shown.
#pragma once

namespace vatro {

/// Sets the names, the icon, Qt's Danish translation and fonts readable at arm's length, and prevents Qt from quitting when the last
/// window closes. Call after creating QApplication.
void PrepareApplication();

}  // namespace vatro
