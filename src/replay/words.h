// SPDX-License-Identifier: MIT
//
// Parses the words of commands into values. Every reader fails with CannotDeliver if it cannot read the text.
#pragma once

#include <string>
#include <string_view>

#include "datetime.h"
#include "driver.h"

namespace vatro {

/// Parses "Enter", "Shift+Tab", "Ctrl+N", or a single character.
KeyStroke ReadKey(std::string_view text);
/// The key that types this character.
KeyStroke KeyOf(char character);
/// The key in the form used for menu shortcuts, such as "Shift+F5"; letters are in upper case.
std::string ShortcutOf(const KeyStroke& key);

/// Parses a whole number.
int ReadInteger(std::string_view text);
/// Parses a non-negative number of seconds and returns milliseconds.
long long ReadSeconds(std::string_view text);
/// Parses "2026-09-05" and "14:05:30"; the seconds may have a fraction.
DateTime ReadDateTime(std::string_view date, std::string_view time);
/// Parses "on" or "off".
bool ReadSwitch(std::string_view text);

}  // namespace vatro
