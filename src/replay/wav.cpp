// SPDX-License-Identifier: MIT
#include "wav.h"

namespace vatro {

namespace {

constexpr std::uint32_t kSamplesPerSecond = 44'100;
constexpr std::uint32_t kBytesPerSample = 2;

/// Little-endian on every machine.
void Add(std::string& bytes, std::uint32_t number, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

}  // namespace

std::string WavFile(std::span<const std::int16_t> samples) {
    const auto size = static_cast<std::uint32_t>(samples.size()) * kBytesPerSample;
    std::string bytes = "RIFF";
    Add(bytes, size + 36, 4);
    bytes += "WAVEfmt ";
    Add(bytes, 16, 4);
    Add(bytes, 1, 2);  // PCM
    Add(bytes, 1, 2);  // channels
    Add(bytes, kSamplesPerSecond, 4);
    Add(bytes, kSamplesPerSecond * kBytesPerSample, 4);
    Add(bytes, kBytesPerSample, 2);
    Add(bytes, kBytesPerSample * 8, 2);
    bytes += "data";
    Add(bytes, size, 4);
    for (const std::int16_t sample : samples) Add(bytes, static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

}  // namespace vatro
