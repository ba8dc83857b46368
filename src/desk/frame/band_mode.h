// SPDX-License-Identifier: MIT
//
// Band, mode and log directory: which log the program works on.
//
// There is one log per band and log mode. The digital modes have no log of their own: they count as CW in the contest
// and stand in the CW log of the band, told apart by the mode column of the line.
//
// The choices are numbered 1 to 12. The same numbers serve the menu, the toolbar and the words typed in the call field:
//
//   1 10m  2 15m  3 20m  4 40m  5 80m  6 XXm (hidden)  7 separator  8 SSB  9 CW  10 PSK31  11 RTTY  12 HELL
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// "10m", "15m", "20m", "40m", "80m" or "XXm": part of the log's file name.
extern std::string gsBand;
/// Log mode, "SSB" or "CW": part of the log's file name; decides how many digits a report has.
extern std::string gsMode;
/// QSO mode, "SSB", "CW", "PSK31", "RTTY" or "HELL": written in each line; decides the default report.
extern std::string gsQsoMode;
/// The log directory, without a final separator.
extern std::string gsLogLib;

inline constexpr int kHiddenBand = 6;
inline constexpr int kFirstMode = 8;

/// The number of a band's or QSO mode's name, spelled exactly as above; 0 if there is none. "XXm" has one.
int BandIndex(std::string_view band);
int ModeIndex(std::string_view qsoMode);
/// The choice that a word typed in the call field asks for ("80M", "CW"), or 0.
int ChoiceOfWord(std::string_view word);

/// Takes the choice over into gsBand, or gsMode and gsQsoMode, and into the ticks of the menu; Morse can be sent only in
/// QSO mode CW.
void SetIndstillinger(int index);

/// Presses the buttons of the current band and QSO mode.
void SetToolbar();

/// The whole change: takes the choice over, loads the log that now is the current one, clears the entry and asks whether
/// the operator stays the same. Does not ask before and does not test whether the choice differs.
void ChangeBandMode(int index);

/// Asks for the log directory: the one in which the user picks or creates the marker file setlog.txt. Keeps the old one on
/// Cancel or any failure; ends the program if there is none.
void SetLogLib();

/// Tells that the log directory has gone. The caller ends the program.
void TjekLogLib();

/// As before the start: no band, no mode, no directory.
void ResetBandMode();

}  // namespace vatro
