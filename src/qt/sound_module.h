// SPDX-License-Identifier: MIT
//
// The part of the program that is linked with Qt Multimedia. It is a library of its own (modules/qt_sound_module.h), loaded when the first
// text is sent: most starts never send one, and the sound system's libraries would cost each of them time and memory.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "sound_player.h"

namespace vatro {

/// All members are called on the sound thread only.
class SoundModule {
public:
    virtual ~SoundModule() = default;
    /// Whether there is an output device. Asks the sound system, which may take some time.
    virtual bool DeviceThere() = 0;
    /// `opened` runs each time the stream has been opened, when the sound system has registered its exit handlers.
    virtual std::unique_ptr<SoundStream> MakeStream(std::function<void()> opened) = 0;
};

/// Loads the module if this has not been done; null if that is not possible. Call on the sound thread.
SoundModule* LoadSoundModule();

}  // namespace vatro

Q_DECLARE_INTERFACE(vatro::SoundModule, "dk.vatro.SoundModule/1")
