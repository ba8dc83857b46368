// SPDX-License-Identifier: MIT
//
// Conversion between the program's text (code page 1252) and Qt's (Unicode).
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vatro {

/// Converts text of the code page.
QString ToQt(std::string_view text);
/// A character outside the code page becomes "?".
std::string FromQt(const QString& text);
/// Whether FromQt would convert the text without loss.
bool HasCodePageText(const QString& text);
/// The part of a pasted or dropped text that the program uses: its first line.
std::string PastedText(const QString& text);
/// A caption without the "&" that marks its access key.
QString PlainCaption(std::string_view caption);

}  // namespace vatro
