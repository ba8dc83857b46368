// SPDX-License-Identifier: MIT
//
// The choice of band and mode. It decides which log the program works on: there is one log per band and log mode.
//
// The choices are numbered 1 to 12. The same numbers serve the menu, the toolbar and the words typed in the call field:
//
//   1 10m  2 15m  3 20m  4 40m  5 80m  6 XXm (hidden)  7 separator  8 SSB  9 CW  10 PSK31  11 RTTY  12 HELL
#pragma once

#include <optional>
#include <string_view>

namespace vatro {

inline constexpr int kHiddenBand = 6;
inline constexpr int kFirstMode = 8;

/// The number of a band or QSO mode, by its name spelled exactly as above; nothing for any other name.
std::optional<int> BandIndex(std::string_view band);
std::optional<int> ModeIndex(std::string_view qsoMode);
/// The number of the choice that a word typed in the call field ("80M", "CW") selects; nothing for any other text.
std::optional<int> ChoiceOfWord(std::string_view word);

/// Applies a choice: sets gsBand, or gsMode and gsQsoMode, and the ticks in the menu, and enables the sending of Morse only in QSO
/// mode CW. The name says "set settings", but no other setting is changed.
void SetIndstillinger(int index);

/// Shows the toolbar buttons of the current band and QSO mode as pressed.
void SetToolbar();

}  // namespace vatro
