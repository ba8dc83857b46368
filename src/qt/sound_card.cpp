// SPDX-License-Identifier: MIT
#include "sound_card.h"

#include <QTimer>
#include <utility>

#include "codepage.h"
#include "deliver.h"
#include "ends.h"
#include "errors.h"
#include "platform.h"
#include "qt_front.h"
#include "sound_loop.h"

namespace vatro {

using namespace literals;

namespace {

/// How long to wait for the sound system; if it does not answer, there is no sound card.
constexpr std::chrono::milliseconds kCardPatience{3000};

/// Without this, the message that there is no sound card would send the operator looking for a cable.
void TellMissing() {
    MessageBox box;
    box.text = "Vatro kan ikke indlæse sin del til lyd, vatro-sound.\n\nCW kan ikke sendes, før Vatro er installeret igen."_t;
    box.icon = Icon::Exclamation;
    platform().dialogs.Show(box);
}

/// The sound system's own exit handler can crash while sound is playing.
void StoreBeforeSoundEnds() {
    static const bool storesFirst = (StoreBeforeExitHandlersSoFar(), true);
    static_cast<void>(storesFirst);
}

}  // namespace

QtSound::QtSound(std::function<SoundModule*()> load)
    : load_(std::move(load)), bell_(std::make_unique<QObject>()), thread_(std::make_shared<SoundThread>(std::make_unique<QtSoundLoop>())) {}

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
    struct Found {
        SoundModule* module = nullptr;
        bool device = false;
    };
    const auto found = std::make_shared<Found>();
    const bool answered = thread_->Await(
        [found, load = load_] {
            found->module = load();
            found->device = found->module != nullptr && found->module->DeviceThere();
        },
        kCardPatience);
    if (answered && found->module == nullptr) TellMissing();
    if (!answered || !found->device) throw RunTimeError(Failure::DeviceUnavailable);
    const auto makeStream = [module = found->module] { return module->MakeStream(StoreBeforeSoundEnds); };
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
