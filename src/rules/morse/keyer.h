// SPDX-License-Identifier: MIT
//
// Morse as samples.
//
// The sound buffer is one second of 16-bit samples that plays round and round. While one half sounds, the other one is filled: the
// stepper walks through the text, and each element that it gives is a copy of a piece. Whoever owns the buffer asks the keyer for a
// half and writes it.
//
// What survives what:
//
//   Begin            a new send: the text is filled in from where the stepper stands, so a new text during a send comes in at the
//                    character where the old one stood
//   ResetPosition    a stop: the next text starts from its beginning; pieces and text stay
//   new pieces       the stepper stays where it is
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "morse/pieces.h"
#include "morse/stepper.h"

namespace vatro {

/// The buffer holds one second.
inline constexpr int kBufferSamples = kSamplesPerSecond;
inline constexpr int kHalfSamples = kBufferSamples / 2;

enum class Half { First, Second };

/// A half of the buffer, to be written.
struct FilledHalf {
    /// Where it begins in the buffer.
    int first = 0;
    /// Valid until the keyer changes.
    std::span<const std::int16_t> samples;
    /// Whether anything but the end mark has gone into it.
    bool active = false;
};

class Keyer {
public:
    Keyer() = default;
    /// Goes on with a text from this place.
    explicit Keyer(Stepper place) : stepper_(std::move(place)) {}

    /// Sets the length of a dot; MakePieces must follow before the next fill. Fails with 11 at speed 0, and nothing has changed.
    void SetSpeed(std::int16_t wordsPerMinute) { pieces_.ComputeDotLength(wordsPerMinute); }
    /// Makes the pieces for the speed set, with pitch in hertz and volume as the peak of the samples. Fails with 9 at a speed too
    /// high or below 0, with 6 where the tone is too loud for 16 bits; no half may be filled then.
    void MakePieces(std::int16_t pitch, std::int32_t volume);

    /// The text from now on, expanded and with a blank at its end; extraSilence in dot lengths behind each character. The place in
    /// the text stays.
    void SetText(std::string text, std::int16_t extraSilence);
    /// To be called before both halves are filled for a start: no element is under way.
    void Begin();
    /// The next text starts from its beginning.
    void ResetPosition() { stepper_.ResetPosition(); }

    /// Fills a half with what comes next. There must be pieces.
    FilledHalf Fill(Half half);

    const Pieces& CurrentPieces() const { return pieces_; }
    const Stepper& Place() const { return stepper_; }

private:
    /// Pastes the pieces of the next elements into one half, the rest of a piece that the end of the other half has cut first, and
    /// moves the stepper on. Returns whether anything but the end mark has gone into the half.
    bool FyldDel(std::span<std::int16_t> half);

    Pieces pieces_;
    Stepper stepper_;
    /// A picture of the sound buffer.
    std::vector<std::int16_t> CWBillede;
};

}  // namespace vatro
