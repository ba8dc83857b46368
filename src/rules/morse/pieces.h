// SPDX-License-Identifier: MIT
//
// The tone of the keyer, cut into pieces of one dot length.
//
// The tone is computed once for a speed, a pitch and a volume. From then on each Morse element is a copy of a piece, so that
// filling the sound buffer costs next to nothing and never falls behind the card. A change of speed, pitch or volume makes new
// pieces.
//
//   element   piece
//   1 2 3     CWStart CWMidte CWSlut    first, middle and last third of a dash
//   4         CWPrik                    a dot
//   blank     CWPause
//   0         CWPause                   the text is over
//   -         CWStreg                   the tone alone; no character is made of it
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vatro {

inline constexpr int kSamplesPerSecond = 44100;

/// Of each piece the first Priklen samples are sent; there is one more behind them.
using Piece = std::vector<std::int16_t>;

struct Pieces {
    /// The length of a dot in samples.
    std::int32_t Priklen = 0;
    /// The tone, three dots long.
    Piece CWStreg;
    Piece CWStart;
    Piece CWMidte;
    Piece CWSlut;
    Piece CWPrik;
    Piece CWPause;

    /// Sets Priklen: 1.2 seconds divided by the words per minute. Fails with 11 at speed 0, and Priklen is left as it was. The
    /// pieces stay those of the old speed until they are made anew.
    void ComputeDotLength(std::int16_t wordsPerMinute);
    /// Makes room for the tone, all silence. Fails with 9 where a dot would be shorter than its ramp.
    void AllocateTone();
    /// The tone into CWStreg; pitch in hertz, volume as the peak of the samples. Fails with 6 where it is too loud for 16 bits.
    void DanTone(std::int16_t pitch, std::int32_t volume);
    /// Cuts CWStreg into the five pieces, with ramps at the ends of dots and dashes. To be called after DanTone.
    void DanElementer();

    /// The piece of an element; nullptr for what is none.
    const Piece* Of(std::string_view element) const;
};

}  // namespace vatro
