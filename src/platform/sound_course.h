// SPDX-License-Identifier: MIT
//
// Tracks how far a looping buffer has been played, and which of its notifications comes next.
//
// The sound cards of the desktop and of the scenarios both use this class, so that they notify at the same sample. Counts are in samples
// since playback began.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "sound.h"

namespace vatro {

/// One playback, from Begin on.
class SoundCourse {
public:
    /// For a buffer of `samples` samples, at least 1.
    explicit SoundCourse(long long samples) : size_(samples) {}

    /// Replaces the notifications set before. Of several at the same sample, only the first is reported.
    void SetPositions(std::span<const PositionNotification> positions) { positions_.assign(positions.begin(), positions.end()); }
    /// Starts a playback at this sample of the buffer; nothing has been played yet.
    void Begin(long long sample);
    /// The buffer position reached after `played` samples.
    std::size_t At(long long played) const { return static_cast<std::size_t>((start_ + played) % size_); }

    /// A notification position that is passed during playback.
    struct Passing {
        /// Number of samples played when the position is passed.
        long long played = 0;
        SoundEvent event = 0;
    };
    /// The next notification that has not been delivered, or nothing if no positions are set. A sample counts as passed once it
    /// has been played to its end.
    std::optional<Passing> Next() const;
    /// Marks the notification returned by Next as delivered.
    void Tell(const Passing& passing) { told_ = passing.played; }

private:
    long long size_;
    long long start_ = 0;
    /// Sample count of the last delivered notification.
    long long told_ = 0;
    std::vector<PositionNotification> positions_;
};

}  // namespace vatro
