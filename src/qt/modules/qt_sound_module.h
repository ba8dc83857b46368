// SPDX-License-Identifier: MIT
//
// The sound module on Qt Multimedia.
#pragma once

#include <QObject>

#include "sound_module.h"

namespace vatro {

class QtSoundModule : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "dk.vatro.SoundModule/1")
    Q_INTERFACES(vatro::SoundModule)

public:
    bool DeviceThere() override;
    std::unique_ptr<SoundStream> MakeStream(std::function<void()> opened) override;
};

}  // namespace vatro
