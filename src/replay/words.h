// SPDX-License-Identifier: MIT
//
// The words of the commands as values. Each reader fails with CannotDeliver on a text that it cannot read.
#pragma once

#include <string>
#include <string_view>

#include "datetime.h"
#include "driver.h"

namespace vatro {

/// "Enter", "Shift+Tab", "Ctrl+N", or one character.
KeyStroke ReadKey(std::string_view text);
/// The key that types this character.
KeyStroke KeyOf(char character);
/// "Shift+F5": the key as menu entries name their shortcuts; letters in upper case.
std::string ShortcutOf(const KeyStroke& key);

int ReadInteger(std::string_view text);
/// Seconds, as milliseconds; not negative.
long long ReadSeconds(std::string_view text);
/// "2026-09-05" and "14:05:30", fractions of the second allowed.
DateTime ReadDateTime(std::string_view date, std::string_view time);
/// "on" or "off".
bool ReadSwitch(std::string_view text);

}  // namespace vatro
