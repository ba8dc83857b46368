// SPDX-License-Identifier: MIT
//
// Access to the settings store: reads and stores the rows of settings_table.h as texts, numbers and flags, and the positions of
// windows. A missing key gives the default, and nothing is written. A stored text that cannot be converted fails with 13 (type
// mismatch), which stops the start of the program.
#pragma once

#include <string>
#include <string_view>

#include "frame/settings_table.h"

namespace vatro {

class Form;

/// Reads a text as it is stored.
std::string ReadSetting(const TextSetting& row);
/// Reads a whole number, -32768 to 32767; fails with 6 outside this range.
std::int16_t ReadSetting(const ShortSetting& row);
/// Reads a whole number of 32 bits. Window positions need them: on a wide or a second screen they can exceed 16 bits.
std::int32_t ReadSetting(const LongSetting& row);
/// Reads "True" or "False", ignoring case, or a number: 0 is false, any other number true.
bool ReadSetting(const FlagSetting& row);

/// Stores a value. It is on the disk on return.
void StoreSetting(const TextSetting& row, std::string_view text);
void StoreSetting(const ShortSetting& row, std::int16_t number);
void StoreSetting(const LongSetting& row, std::int32_t number);
void StoreSetting(const FlagSetting& row, bool flag);

/// Moves and sizes the form to its stored position, even if that lies on a screen that no longer exists.
void RestorePlace(Form& form, const PlaceSetting& place);
/// Stores the form's position and size unless it is minimised.
void StorePlace(const Form& form, const PlaceSetting& place);

}  // namespace vatro
