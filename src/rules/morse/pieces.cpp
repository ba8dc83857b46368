// SPDX-License-Identifier: MIT
#include "morse/pieces.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// Samples in a ramp, the same at every speed.
constexpr int kRampSamples = 25;

std::size_t SampleIndex(std::int32_t sample) {
    return static_cast<std::size_t>(sample);
}

/// `sample` times `step` / kRampSamples, rounded down (towards minus infinity).
std::int16_t Attenuated(std::int16_t sample, int step) {
    return ToInt16(std::floor(static_cast<double>(sample) / kRampSamples * step));
}

}  // namespace

void Pieces::ComputeDotLength(std::int16_t wordsPerMinute) {
    if (wordsPerMinute == 0) throw RunTimeError(Failure::DivisionByZero);
    Priklen = static_cast<std::int32_t>(std::floor(static_cast<double>(kSamplesPerSecond) * 12 / wordsPerMinute / 10));
}

void Pieces::AllocateTone() {
    if (Priklen < kRampSamples) throw RunTimeError(Failure::IndexOutOfRange);
    CWStreg.assign(SampleIndex(3 * Priklen + 1), 0);
}

void Pieces::DanTone(std::int16_t pitch, std::int32_t volume) {
    const double w = std::numbers::pi * 2 * pitch / kSamplesPerSecond;
    const std::int16_t a = ToInt16(volume);
    // Each sample is computed from the two rounded samples before it, so the peak varies a little around the volume. Do not replace
    // this by one sine per sample: the last digits would change, and recordings of two copies are compared sample by sample.
    CWStreg[1] = ToInt16(-std::sin(w) * a);
    const double factor = 2 * std::cos(w);
    for (std::size_t i = 2; i < CWStreg.size(); ++i) CWStreg[i] = ToInt16(factor * CWStreg[i - 1] - CWStreg[i - 2]);
}

void Pieces::DanElementer() {
    const auto cut = [this](std::int32_t from) {
        Piece piece(SampleIndex(Priklen + 1), 0);
        std::copy_n(CWStreg.begin() + from, Priklen, piece.begin());
        return piece;
    };
    CWPrik = cut(0);
    CWStart = cut(0);
    // The middle third starts one sample early, so a dash repeats the last sample of its first third. This cannot be heard. Do not
    // correct it: recordings of two copies are compared sample by sample.
    CWMidte = cut(Priklen - 1);
    CWSlut = cut(2 * Priklen - 1);
    CWPause.assign(SampleIndex(Priklen + 1), 0);

    for (int i = 0; i <= kRampSamples; ++i) {
        CWStart[SampleIndex(i)] = Attenuated(CWStart[SampleIndex(i)], i);
        CWPrik[SampleIndex(i)] = Attenuated(CWPrik[SampleIndex(i)], i);
    }
    for (std::int32_t i = Priklen - kRampSamples; i <= Priklen; ++i) {
        CWSlut[SampleIndex(i)] = Attenuated(CWSlut[SampleIndex(i)], Priklen - i);
        CWPrik[SampleIndex(i)] = Attenuated(CWPrik[SampleIndex(i)], Priklen - i);
    }
}

const Piece* Pieces::Of(std::string_view element) const {
    if (element.size() != 1) return nullptr;
    switch (element.front()) {
        case '1':
            return &CWStart;
        case '2':
            return &CWMidte;
        case '3':
            return &CWSlut;
        case '4':
            return &CWPrik;
        case ' ':
        case '0':
            return &CWPause;
        case '-':
            return &CWStreg;
        default:
            return nullptr;
    }
}

}  // namespace vatro
