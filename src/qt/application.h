// SPDX-License-Identifier: MIT
//
// Preparations that both window programs make before anything is shown.
#pragma once

#include <QFont>

namespace vatro {

/// Sets the names, the icon, Qt's Danish translation and fonts readable at arm's length, and prevents Qt from quitting when the last
/// window closes. Call after creating QApplication.
void PrepareApplication();

/// The style strategy of the program's fonts. Letters of the code page stand beside each other as they are; without this, each text is
/// shaped first, which takes longer than painting it. Texts in scripts that need shaping, as a file name may be, are shaped nevertheless.
inline constexpr QFont::StyleStrategy kPlainLetters = QFont::PreferNoShaping;

}  // namespace vatro
