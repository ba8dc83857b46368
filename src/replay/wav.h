// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vatro {

/// The bytes of a WAV file: 16-bit mono at 44,100 Hz.
std::string WavFile(std::span<const std::int16_t> samples);

}  // namespace vatro
