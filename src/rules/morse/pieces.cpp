// SPDX-License-Identifier: MIT
#include "morse/pieces.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// Samples of a ramp, whatever the speed.
constexpr int kRampSamples = 25;

std::size_t IndexOf(std::int32_t sample) {
    return static_cast<std::size_t>(sample);
}

/// The part `step` of 25 of a sample, rounded downwards also where it is negative.
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
    CWStreg.assign(IndexOf(3 * Priklen + 1), 0);
}

void Pieces::DanTone(std::int16_t pitch, std::int32_t volume) {
    const double w = std::numbers::pi * 2 * pitch / kSamplesPerSecond;
    const std::int16_t a = ToInt16(volume);
    // Each sample comes from the two rounded ones before it, so that the peak wanders a little round A. This is how the tone is
    // defined: a tone made of one sine per sample would be another one in its last digits.
    CWStreg[1] = ToInt16(-std::sin(w) * a);
    const double factor = 2 * std::cos(w);
    for (std::size_t i = 2; i < CWStreg.size(); ++i) CWStreg[i] = ToInt16(factor * CWStreg[i - 1] - CWStreg[i - 2]);
}

void Pieces::DanElementer() {
    const auto cut = [this](std::int32_t from) {
        Piece piece(IndexOf(Priklen + 1), 0);
        std::copy_n(CWStreg.begin() + from, Priklen, piece.begin());
        return piece;
    };
    CWPrik = cut(0);
    CWStart = cut(0);
    // One sample early: a dash has the last sample of its first third twice. This is how every dash has always sounded.
    CWMidte = cut(Priklen - 1);
    CWSlut = cut(2 * Priklen - 1);
    CWPause.assign(IndexOf(Priklen + 1), 0);

    for (int i = 0; i <= kRampSamples; ++i) {
        CWStart[IndexOf(i)] = Attenuated(CWStart[IndexOf(i)], i);
        CWPrik[IndexOf(i)] = Attenuated(CWPrik[IndexOf(i)], i);
    }
    for (std::int32_t i = Priklen - kRampSamples; i <= Priklen; ++i) {
        CWSlut[IndexOf(i)] = Attenuated(CWSlut[IndexOf(i)], Priklen - i);
        CWPrik[IndexOf(i)] = Attenuated(CWPrik[IndexOf(i)], Priklen - i);
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
