// SPDX-License-Identifier: MIT
//
// Text between the program, which speaks code page 1252, and Qt, which speaks Unicode.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vatro {

QString ToQt(std::string_view text);
/// A character outside the code page becomes "?".
std::string FromQt(const QString& text);
/// Whether FromQt gives the text as it is.
bool HasCodePageText(const QString& text);
/// What the program takes of a text that the user brings in from outside: its first line.
std::string PastedText(const QString& text);
/// A caption without the "&" of its access key.
QString PlainCaption(std::string_view caption);

}  // namespace vatro
