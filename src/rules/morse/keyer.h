// SPDX-License-Identifier: MIT
//
// Turns Morse text into sound samples.
//
// The sound buffer holds one second of 16-bit samples and plays in a loop. While one half plays, the other one is filled: the stepper
// walks through the text, and each element that it returns is a copy of a piece. The owner of the buffer asks the keyer for a half
// and writes it into the buffer.
//
// What each operation keeps:
//
//   Begin            starts a send and keeps the position in the text, so a text that is started during another send begins at the
//                    character where the old one stood
//   ResetPosition    after a stop: the next text starts from its beginning; pieces and text are kept
//   MakePieces       makes new pieces and keeps the position in the text
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "morse/pieces.h"
#include "morse/stepper.h"

namespace vatro {

/// Samples in the buffer: one second.
inline constexpr int kBufferSamples = kSamplesPerSecond;
inline constexpr int kHalfSamples = kBufferSamples / 2;

enum class Half { First, Second };

/// The samples for one half of the buffer.
struct FilledHalf {
    /// Position of the half in the buffer, in samples.
    int first = 0;
    /// Valid until the next call that changes the keyer.
    std::span<const std::int16_t> samples;
    /// Whether the half holds any element other than the end mark.
    bool active = false;
};

class Keyer {
public:
    Keyer() = default;
    /// Continues a text at this position.
    explicit Keyer(Stepper place) : stepper_(std::move(place)) {}

    /// Sets the length of a dot. Call MakePieces before the next Fill. Fails with 11 at speed 0 and then changes nothing.
    void SetSpeed(std::int16_t wordsPerMinute) { pieces_.ComputeDotLength(wordsPerMinute); }
    /// Makes the pieces for the current speed. `pitch` is in hertz, `volume` is the peak of the samples. Fails with 9 if the speed is
    /// too high or negative, with 6 if the tone is too loud for 16 bits; do not call Fill after a failure.
    void MakePieces(std::int16_t pitch, std::int32_t volume);

    /// Sets the text, which must be expanded and end with a blank, and the extra silence after each character, in dot lengths. The
    /// position in the text is kept: a text that is started while another one is sent begins at the character where the old one stood. Do
    /// not reset it: operators press a second key to change the rest of a text (docs/rules.md).
    void SetText(std::string text, std::int16_t extraSilence);
    /// Clears the current element. Call it at the start of each send, before both halves are filled.
    void Begin();
    /// Makes the next text start from its beginning.
    void ResetPosition() { stepper_.ResetPosition(); }

    /// Fills a half with the next samples. MakePieces must have succeeded.
    FilledHalf Fill(Half half);

    const Pieces& CurrentPieces() const { return pieces_; }
    const Stepper& Place() const { return stepper_; }

private:
    /// Copies the pieces of the next elements into a half and moves the stepper on. It begins with the rest of a piece that was cut
    /// off at the end of the other half. Returns whether the half holds any element other than the end mark.
    bool FyldDel(std::span<std::int16_t> half);

    Pieces pieces_;
    Stepper stepper_;
    /// A copy of the sound buffer's content.
    std::vector<std::int16_t> CWBillede;
};

}  // namespace vatro
