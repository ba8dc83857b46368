// SPDX-License-Identifier: MIT
//
// The choice of band and mode, which decides the log that the program works on: there is one log per band and log mode.
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

/// The number of a band's or QSO mode's name, spelled exactly as above, if there is one. "XXm" has one.
std::optional<int> BandIndex(std::string_view band);
std::optional<int> ModeIndex(std::string_view qsoMode);
/// The choice that a word typed in the call field asks for ("80M", "CW"), if it asks for one.
std::optional<int> ChoiceOfWord(std::string_view word);

/// Takes the choice over into gsBand, or gsMode and gsQsoMode, and into the ticks of the menu; Morse can be sent only in
/// QSO mode CW.
void SetIndstillinger(int index);

/// Presses the buttons of the current band and QSO mode.
void SetToolbar();

}  // namespace vatro
