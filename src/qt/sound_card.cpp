// SPDX-License-Identifier: MIT
#include "sound_card.h"

#include <QTimer>

#include "deliver.h"
#include "errors.h"
#include "qt_front.h"
#include "sound_loop.h"
#include "sound_stream.h"

namespace vatro {

namespace {

/// How long to wait for the sound system; if it does not answer, there is no sound card.
constexpr std::chrono::milliseconds kPatience{3000};

}  // namespace

QtSound::QtSound() : bell_(std::make_unique<QObject>()), thread_(std::make_shared<SoundThread>(std::make_unique<QtSoundLoop>())) {}

QtSound::~QtSound() {
    // If the thread hangs in the sound system, it may still post later, so leak the object.
    if (!thread_->End()) static_cast<void>(bell_.release());
}

SoundEvent QtSound::CreateEvent(std::function<void(SoundEvent)> callback) {
    events_.emplace(++lastEvent_, std::move(callback));
    return lastEvent_;
}

void QtSound::DestroyEvent(SoundEvent event) {
    events_.erase(event);
}

std::unique_ptr<SoundDevice> QtSound::CreateDevice() {
    const auto there = std::make_shared<bool>(false);
    const bool answered = thread_->Await([there] { *there = QtSoundStream::DeviceThere(); }, kPatience);
    if (!answered || !*there) throw RunTimeError(Failure::DeviceUnavailable);
    const auto makeStream = [] { return std::make_unique<QtSoundStream>(); };
    return std::make_unique<ThreadedSoundDevice>(thread_, makeStream, [this, bell = bell_.get()](const SoundSignal& signal) {
        QMetaObject::invokeMethod(
            bell,
            [this, signal] {
                signals_.push_back(signal);
                RunSignals();
            },
            Qt::QueuedConnection);
    });
}

void QtSound::RunSignals() {
    while (!signals_.empty()) {
        if (TicksHeld()) {
            QTimer::singleShot(1, bell_.get(), [this] { RunSignals(); });
            return;
        }
        const SoundSignal signal = signals_.front();
        signals_.pop_front();
        const auto found = events_.find(signal.event);
        if (found == events_.end() || signal.OutOfDate()) continue;
        // Copy the callback: it may destroy its own event.
        const auto callback = found->second;
        Deliver([&] { callback(signal.event); });
    }
}

}  // namespace vatro
