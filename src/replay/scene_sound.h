// SPDX-License-Identifier: MIT
//
// The sound card of a scenario: it plays in scenario time and records what is heard.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "scene_clock.h"
#include "sound.h"

namespace vatro {

class SceneSound : public Sound, public DueEvents {
public:
    /// The clock must outlive this object.
    explicit SceneSound(const SceneClock& clock) : clock_(clock) {}

    /// Sets whether a device can be created from now on.
    void SetCard(bool there) { card_ = there; }
    /// The samples heard since the last call. Silence while nothing plays is not recorded.
    std::vector<std::int16_t> TakeHeard();

    SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) override;
    void DestroyEvent(SoundEvent event) override { events_.erase(event); }
    std::unique_ptr<SoundDevice> CreateDevice() override;

    std::optional<SceneTime> NextDue() const override;
    void DeliverNext() override;

private:
    class Buffer;
    class Device;

    const SceneClock& clock_;
    bool card_ = true;
    SoundEvent lastEvent_ = 0;
    std::map<SoundEvent, std::function<void(SoundEvent)>> events_;
    std::vector<Buffer*> playing_;
    std::vector<std::int16_t> heard_;
};

}  // namespace vatro
