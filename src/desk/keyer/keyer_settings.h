// SPDX-License-Identifier: MIT
//
// The settings of the keyer, section "CW" of the settings store: how Morse sounds and the eight texts of the function keys.
// They are read once, at the start, and live in memory; frmCW changes them and stores them with OK.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vatro {

/// Speed in words per minute, pitch in hertz.
extern std::int16_t giCWWPM;
extern std::int16_t giCWTone;
/// Peak of the samples. frmCW offers 0 to 10000; a tone cannot be louder than 32767.
extern std::int32_t glCWVolume;
/// Dot lengths of silence added behind each character; at most 20. No window sets it.
extern std::int16_t giCWFarnsworth;
/// How a serial number is sent: "001" with its zeros, "--1" with a T for each leading zero.
extern std::string gsCWNummerFormat;
/// How the report 599 is sent: "599" or "5nn".
extern std::string gsCWRSTFormat;

inline constexpr std::string_view kNummerMedNuller = "001";
inline constexpr std::string_view kNummerMedT = "--1";
inline constexpr std::string_view kRSTMedTal = "599";
inline constexpr std::string_view kRSTMedN = "5nn";

inline constexpr std::size_t kAntalCWTekster = 8;
/// The texts of F5 to F8 and Shift+F5 to Shift+F8, with their #-codes.
extern std::array<std::string, kAntalCWTekster> CWTekster;

/// Reads all keys of the section. Fails with 13 on a text that is no number and with 6 on a number out of range.
void HentCWIndstillinger();
/// Writes them.
void GemCWIndstillinger();

}  // namespace vatro
