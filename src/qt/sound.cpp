// SPDX-License-Identifier: MIT
#include "qt/sound.h"

#include "text/errors.h"

namespace vatro {

SoundEvent QtSound::CreateEvent(std::function<void(SoundEvent)> /*callback*/) {
    return 0;
}

void QtSound::DestroyEvent(SoundEvent /*event*/) {}

std::unique_ptr<SoundDevice> QtSound::CreateDevice() {
    throw RunTimeError(Failure::DeviceUnavailable);
}

}  // namespace vatro
