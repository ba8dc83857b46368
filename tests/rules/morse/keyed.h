// SPDX-License-Identifier: MIT
//
// The keyer without the program: pieces for a speed, and the samples that the fills return.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "errors.h"
#include "morse/keyer.h"

namespace vatro {

using Samples = std::vector<std::int16_t>;

inline constexpr int kHalf = 22050;

/// The number of the failure, or 0.
template <class Work>
int FailureOf(Work work) {
    try {
        work();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

inline Pieces PiecesAt(int wpm, int pitch = 800, int volume = 10000) {
    Pieces pieces;
    pieces.ComputeDotLength(static_cast<std::int16_t>(wpm));
    pieces.AllocateTone();
    pieces.DanTone(static_cast<std::int16_t>(pitch), volume);
    pieces.DanElementer();
    return pieces;
}

/// A keyer with pieces, at this position of a text.
inline Keyer KeyerAt(int wpm, Stepper place = {}) {
    Keyer keyer(std::move(place));
    keyer.SetSpeed(static_cast<std::int16_t>(wpm));
    keyer.MakePieces(800, 10000);
    return keyer;
}

inline Samples SamplesOf(const FilledHalf& half) {
    return {half.samples.begin(), half.samples.end()};
}

/// The samples of these slots, one piece after the other.
inline Samples Pasted(const Pieces& pieces, std::string_view slots) {
    Samples samples;
    for (const char slot : slots) {
        const Piece& piece = slot == '1'   ? pieces.CWStart
                             : slot == '2' ? pieces.CWMidte
                             : slot == '3' ? pieces.CWSlut
                             : slot == '4' ? pieces.CWPrik
                                           : pieces.CWPause;
        samples.insert(samples.end(), piece.begin(), piece.begin() + pieces.Priklen);
    }
    return samples;
}

/// Sends the text to its end: fills one half after the other until a half is no longer active, and returns the samples of all.
inline Samples Filled(Keyer& keyer, std::string_view text) {
    keyer.SetText(std::string(text), 0);
    keyer.Begin();
    Samples all;
    for (int i = 0; i < 1000; ++i) {
        const FilledHalf filled = keyer.Fill(i % 2 == 0 ? Half::First : Half::Second);
        all.insert(all.end(), filled.samples.begin(), filled.samples.end());
        if (!filled.active) return all;
    }
    ADD_FAILURE() << "the text has no end";
    return all;
}

}  // namespace vatro
