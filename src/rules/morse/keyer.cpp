// SPDX-License-Identifier: MIT
#include "morse/keyer.h"

#include <algorithm>

namespace vatro {

void Keyer::MakePieces(std::int16_t pitch, std::int32_t volume) {
    pieces_.AllocateTone();
    CWBillede.assign(kBufferSamples, 0);
    pieces_.DanTone(pitch, volume);
    pieces_.DanElementer();
}

void Keyer::SetText(std::string text, std::int16_t extraSilence) {
    stepper_.gsCWTekst = std::move(text);
    stepper_.extraSilence = extraSilence;
}

void Keyer::Begin() {
    stepper_.glCWSlat = 0;
    stepper_.gsElement.clear();
}

FilledHalf Keyer::Fill(Half half) {
    const int first = half == Half::First ? 0 : kHalfSamples;
    const auto samples = std::span(CWBillede).subspan(static_cast<std::size_t>(first), kHalfSamples);
    const bool active = FyldDel(samples);
    return {first, samples, active};
}

bool Keyer::FyldDel(std::span<std::int16_t> half) {
    const std::int32_t dot = pieces_.Priklen;
    const auto end = static_cast<std::int32_t>(half.size());
    bool active = false;
    std::int32_t i = 0;
    const auto insert = [&](std::int32_t from, std::int32_t count) {
        // At one word per minute even the rest of a piece is longer than a half.
        if (const Piece* piece = pieces_.Of(stepper_.gsElement))
            std::copy_n(piece->begin() + from, std::min(count, end - i), half.begin() + i);
        i += count;
        if (!stepper_.AtEnd()) active = true;
    };
    // The end mark stays the current element: no further text is sent before the next Begin.
    const auto next = [&] {
        if (!stepper_.AtEnd()) stepper_.gsElement = stepper_.NæsteElement();
    };

    // First the rest of the piece that was cut off at the end of the other half, so that the tone continues without a gap.
    if (stepper_.glCWSlat > 0) {
        insert(stepper_.glCWSlat, dot - stepper_.glCWSlat);
        stepper_.glCWSlat = 0;
    }
    while (i < end - dot) {
        next();
        insert(0, dot);
    }
    if (i < end) {
        next();
        stepper_.glCWSlat = end - i;
        insert(0, stepper_.glCWSlat);
    }
    return active;
}

}  // namespace vatro
