// SPDX-License-Identifier: MIT
#include "sound_module.h"

#include <utility>

#include "sound_stream.h"

namespace vatro {

class QtSoundModule : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "dk.vatro.SoundModule/1")
    Q_INTERFACES(vatro::SoundModule)

public:
    bool DeviceThere() override { return QtSoundStream::DeviceThere(); }
    std::unique_ptr<SoundStream> MakeStream(std::function<void()> opened) override {
        return std::make_unique<QtSoundStream>(std::move(opened));
    }
};

}  // namespace vatro

#include "sound_module.moc"
