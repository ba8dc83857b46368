// SPDX-License-Identifier: MIT
#include "platform/sound_ring.h"

#include <algorithm>

#include "platform/sound_course.h"
#include "text/errors.h"

namespace vatro {

void SoundRing::Write(int startByte, int size, std::span<const std::int16_t> image) {
    const auto from = static_cast<std::size_t>(startByte / kBytesPerSample);
    const auto count = static_cast<std::size_t>(size / kBytesPerSample);
    if (startByte < 0 || size < 0 || from + count > samples_.size() || from + count > image.size())
        throw RunTimeError(Failure::InvalidCall);
    const std::lock_guard lock(mutex_);
    std::ranges::copy(image.subspan(from, count), samples_.begin() + static_cast<std::ptrdiff_t>(from));
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
