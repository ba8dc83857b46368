// SPDX-License-Identifier: MIT
#include "sound_ring.h"

#include <algorithm>

#include "errors.h"

namespace vatro {

void SoundRing::Write(int first, std::span<const std::int16_t> samples) {
    if (first < 0 || static_cast<std::size_t>(first) + samples.size() > samples_.size()) throw RunTimeError(Failure::InvalidCall);
    const std::lock_guard lock(mutex_);
    std::ranges::copy(samples, samples_.begin() + first);
}

void SoundRing::Read(std::size_t from, std::span<std::int16_t> to) const {
    const std::lock_guard lock(mutex_);
    while (!to.empty()) {
        const std::size_t count = std::min(to.size(), samples_.size() - from);
        std::copy_n(samples_.begin() + static_cast<std::ptrdiff_t>(from), count, to.begin());
        to = to.subspan(count);
        from = 0;
    }
}

}  // namespace vatro
