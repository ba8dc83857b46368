// SPDX-License-Identifier: MIT
//
// The settings store as the program uses it: texts that are turned into numbers and flags on reading, and the places of
// the windows. A missing key yields the default and nothing is written. A stored text that cannot be turned fails with
// 13 (type mismatch), which stops the start.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

class Form;

inline constexpr std::string_view kSettings = "Settings";
/// Where the main form stood; written by every regular end.
inline constexpr std::string_view kMainLeftKey = "MainLeft";

/// The text as it is stored.
std::string ReadText(std::string_view section, std::string_view key, std::string_view standard = {});
/// A whole number, -32768 to 32767; fails with 6 beyond.
int ReadNumber(std::string_view section, std::string_view key, int standard);
/// A place or length in twips: beside a wide screen, or on a second one, it can be more than ReadNumber takes.
int ReadTwips(std::string_view key, int standard);
/// "True" or "False" without regard to case, or a number, of which 0 is false.
bool ReadFlag(std::string_view section, std::string_view key, bool standard);

/// What is stored is on the disk on return.
void StoreText(std::string_view section, std::string_view key, std::string_view text);
void StoreNumber(std::string_view section, std::string_view key, int number);
void StoreFlag(std::string_view section, std::string_view key, bool flag);

/// The keys and defaults, in twips, of a window's place: "QSO" gives QSOLeft, QSOTop, QSOWidth, QSOHeight.
struct WindowPlace {
    std::string_view name;
    int left;
    int top;
    int width;
    int height;
};

/// Moves and sizes the form to its stored place; one on a screen that is no longer there is taken as it is.
void RestorePlace(Form& form, const WindowPlace& place);
/// Stores the form's place unless it is minimised.
void StorePlace(const Form& form, const WindowPlace& place);

}  // namespace vatro
