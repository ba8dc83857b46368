// SPDX-License-Identifier: MIT
//
// The settings store as the program uses it: rows of settings_table.h are read and stored as texts, numbers and flags, and the
// places of the windows. A missing key yields the default and nothing is written. A stored text that cannot be turned fails with
// 13 (type mismatch), which stops the start.
#pragma once

#include <string>
#include <string_view>

#include "frame/settings_table.h"

namespace vatro {

class Form;

/// The text as it is stored.
std::string ReadSetting(const TextSetting& row);
/// A whole number, -32768 to 32767; fails with 6 beyond.
std::int16_t ReadSetting(const ShortSetting& row);
/// A whole number of 32 bits: a place beside a wide screen, or on a second one, can be more than 16 bits take.
std::int32_t ReadSetting(const LongSetting& row);
/// "True" or "False" without regard to case, or a number, of which 0 is false.
bool ReadSetting(const FlagSetting& row);
/// Whether anything is stored.
bool IsStored(const LongSetting& row);

/// What is stored is on the disk on return.
void StoreSetting(const TextSetting& row, std::string_view text);
void StoreSetting(const ShortSetting& row, std::int16_t number);
void StoreSetting(const LongSetting& row, std::int32_t number);
void StoreSetting(const FlagSetting& row, bool flag);

/// Moves and sizes the form to its stored place; one on a screen that is no longer there is taken as it is.
void RestorePlace(Form& form, const PlaceSetting& place);
/// Stores the form's place unless it is minimised.
void StorePlace(const Form& form, const PlaceSetting& place);

}  // namespace vatro
