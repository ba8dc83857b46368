// SPDX-License-Identifier: MIT
#include "sound_course.h"

namespace vatro {

void SoundCourse::Begin(long long sample) {
    start_ = sample;
    told_ = 0;
}

std::optional<SoundCourse::Passing> SoundCourse::Next() const {
    std::optional<Passing> next;
    for (const PositionNotification& position : positions_) {
        long long played = position.sample + 1 - start_;
        while (played <= told_) played += size_;
        if (!next || played < next->played) next = Passing{played, position.event};
    }
    return next;
}

}  // namespace vatro
