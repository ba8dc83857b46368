// SPDX-License-Identifier: MIT
//
// What the handlers of the keyer share: its settings, the values of the last send, and the keyer itself. A part of the
// state of the desk, DeskState::cw.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "morse/keyer.h"

namespace vatro {

/// The function keys F5 to F8 and Shift+F5 to Shift+F8.
inline constexpr std::size_t kCwTextCount = 8;

struct KeyerState {
    // The settings. HentCWIndstillinger reads them at the start, frmCW changes them.

    /// Speed in words per minute, pitch in hertz.
    std::int16_t giCWWPM = 0;
    std::int16_t giCWTone = 0;
    /// Peak of the samples. frmCW offers 0 to 10000; a tone cannot be louder than 32767.
    std::int32_t glCWVolume = 0;
    /// Dot lengths of silence added behind each character; at most 20. No window sets it.
    std::int16_t giCWFarnsworth = 0;
    /// How a serial number and a report are sent (morse/text_codes.h).
    std::string gsCWNummerFormat;
    std::string gsCWRSTFormat;
    /// The texts of the function keys, with their #-codes.
    std::array<std::string, kCwTextCount> CWTekster;

    // The last send. SendCW sets them; they live on until the next one.

    /// The text as it stands in the settings.
    std::string gsCWRaa;
    std::string gsCWCall;
    /// frmCWTX gives these two the form of the settings.
    std::string gsCWRST;
    std::string gsCWNummer;

    /// The text under way and its place in it, and the samples. frmCWTX drives it.
    Keyer keyer;
};

}  // namespace vatro
