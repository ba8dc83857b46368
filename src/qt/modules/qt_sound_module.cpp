// SPDX-License-Identifier: MIT
#include "qt_sound_module.h"

#include <utility>

#include "sound_stream.h"

namespace vatro {

bool QtSoundModule::DeviceThere() {
    return QtSoundStream::DeviceThere();
}

std::unique_ptr<SoundStream> QtSoundModule::MakeStream(std::function<void()> opened) {
    return std::make_unique<QtSoundStream>(std::move(opened));
}

}  // namespace vatro
