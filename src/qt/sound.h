// SPDX-License-Identifier: MIT
//
// The sound card of the desktop.
#pragma once

#include "platform/sound.h"

namespace vatro {

class QtSound : public Sound {
public:
    SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) override;
    void DestroyEvent(SoundEvent event) override;
    std::unique_ptr<SoundDevice> CreateDevice() override;
};

}  // namespace vatro
