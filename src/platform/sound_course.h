// SPDX-License-Identifier: MIT
//
// Where a play round a looping buffer stands, and which of its notifications comes next.
//
// Every sound card of the platform counts by this, so that all of them notify at the same sample. Counts are in samples, from
// where the play began.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "sound.h"

namespace vatro {

/// One play, from Begin on.
class SoundCourse {
public:
    /// A buffer of so many samples, at least one.
    explicit SoundCourse(long long samples) : size_(samples) {}

    void SetPositions(std::span<const PositionNotification> positions) { positions_.assign(positions.begin(), positions.end()); }
    /// The play begins at this sample of the buffer, and nothing has been played.
    void Begin(long long sample);
    /// The sample of the buffer that stands behind so many played ones.
    std::size_t At(long long played) const { return static_cast<std::size_t>((start_ + played) % size_); }

    struct Passing {
        /// Samples played until then.
        long long played = 0;
        SoundEvent event = 0;
    };
    /// The first passing that has not been told yet, or nothing without positions. A sample is passed when it has been played to
    /// its end.
    std::optional<Passing> Next() const;
    /// The passing that Next gives has been told.
    void Tell(const Passing& passing) { told_ = passing.played; }

private:
    long long size_;
    long long start_ = 0;
    /// The count of the passing told last.
    long long told_ = 0;
    std::vector<PositionNotification> positions_;
};

}  // namespace vatro
