// SPDX-License-Identifier: MIT
//
// The samples of a looping buffer, shared by the thread that fills it and the thread that plays it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace vatro {

/// All members may be called on any thread at any time.
class SoundRing {
public:
    /// Creates a silent buffer of `samples` samples.
    explicit SoundRing(int samples) : samples_(static_cast<std::size_t>(samples)) {}
    /// Length in samples.
    long long Size() const { return static_cast<long long>(samples_.size()); }
    /// Same as SoundBuffer::Write, including its failure.
    void Write(int first, std::span<const std::int16_t> samples);
    /// Fills `to` with samples starting at `from`, wrapping around at the end of the buffer.
    void Read(std::size_t from, std::span<std::int16_t> to) const;

private:
    mutable std::mutex mutex_;
    std::vector<std::int16_t> samples_;
};

}  // namespace vatro
