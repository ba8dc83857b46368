// SPDX-License-Identifier: MIT
//
// The tone of the keyer, cut into pieces of one dot length.
//
// The tone is computed once for each combination of speed, pitch and volume. After that each Morse element is a copy of a piece, so
// filling the sound buffer costs almost nothing and never falls behind the sound card. A change of speed, pitch or volume needs new
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

/// The samples of a piece. The five pieces hold Priklen + 1 samples each; only the first Priklen are sent.
using Piece = std::vector<std::int16_t>;

struct Pieces {
    /// The length of a dot in samples.
    std::int32_t Priklen = 0;
    /// The tone, three dots long. The name says "dash", but dashes are made of the three thirds.
    Piece CWStreg;
    Piece CWStart;
    Piece CWMidte;
    Piece CWSlut;
    Piece CWPrik;
    Piece CWPause;

    /// Sets Priklen to the samples of 1.2 seconds divided by the words per minute. Fails with 11 at speed 0 and then leaves Priklen as it
    /// was. The pieces keep the old speed until they are made again.
    void ComputeDotLength(std::int16_t wordsPerMinute);
    /// Allocates the tone, filled with silence. Fails with 9 if a dot would be shorter than its ramp.
    void AllocateTone();
    /// Computes the tone into CWStreg. `pitch` is in hertz, `volume` is the peak of the samples. Fails with 6 if the tone is too loud
    /// for 16 bits.
    void DanTone(std::int16_t pitch, std::int32_t volume);
    /// Cuts CWStreg into the five pieces, with ramps at the ends of dots and dashes. Call DanTone first.
    void DanElementer();

    /// The piece of an element; nullptr if the text is not an element.
    const Piece* Of(std::string_view element) const;
};

}  // namespace vatro
