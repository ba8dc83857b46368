// SPDX-License-Identifier: MIT
//
// The state that the handlers of the keyer share: its settings, the values of the last send, and the keyer itself. It is part of the
// state of the desk, DeskState::cw.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "morse/keyer.h"

namespace vatro {

/// The number of texts: function keys F5 to F8 and Shift+F5 to Shift+F8.
inline constexpr std::size_t kCwTextCount = 8;

struct KeyerState {
    // The settings. HentCWIndstillinger reads them at the start, frmCW changes them.

    /// Speed in words per minute, pitch in hertz.
    std::int16_t giCWWPM = 0;
    std::int16_t giCWTone = 0;
    /// Peak of the samples. frmCW offers 0 to 10000; a tone louder than 32767 cannot be made.
    std::int32_t glCWVolume = 0;
    /// Silence added after each character, in dot lengths; at most 20. Only the settings file sets it.
    std::int16_t giCWFarnsworth = 0;
    /// How serial numbers and reports are sent (morse/text_codes.h).
    std::string gsCWNummerFormat;
    std::string gsCWRSTFormat;
    /// The texts of the function keys, with their #-codes.
    std::array<std::string, kCwTextCount> CWTekster;

    // The values of the last send. SendCW sets them; they are kept until the next send.

    /// The text as it is in the settings, with its #-codes.
    std::string gsCWRaa;
    std::string gsCWCall;
    /// frmCWTX converts these two to the form that the settings ask for.
    std::string gsCWRST;
    std::string gsCWNummer;

    /// The keyer: the text being sent, the position in it, and the samples. frmCWTX drives it.
    Keyer keyer;
};

}  // namespace vatro
