// SPDX-License-Identifier: MIT
//
// The samples of a looping buffer, between the thread that fills it and the one that plays it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace vatro {

/// Any thread may call any of these at any time.
class SoundRing {
public:
    /// Silent.
    explicit SoundRing(int samples) : samples_(static_cast<std::size_t>(samples)) {}
    /// In samples.
    long long Size() const { return static_cast<long long>(samples_.size()); }
    /// As SoundBuffer::Write, with its failure.
    void Write(int first, std::span<const std::int16_t> samples);
    /// Copies from this sample on, round at the end.
    void Read(std::size_t from, std::span<std::int16_t> to) const;

private:
    mutable std::mutex mutex_;
    std::vector<std::int16_t> samples_;
};

}  // namespace vatro
