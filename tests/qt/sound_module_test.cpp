// SPDX-License-Identifier: MIT
#include "sound_card.h"

#include "running_program.h"

namespace vatro {
namespace {

class SoundModuleOfTheProgram : public RunningProgram {};

TEST_F(SoundModuleOfTheProgram, LiesBesideTheProgram) {
    EXPECT_NE(LoadSoundModule(), nullptr);
}

TEST_F(SoundModuleOfTheProgram, IsNotLoadedBeforeADeviceIsWanted) {
    bool loaded = false;
    {
        QtSound card([&loaded]() -> SoundModule* {
            loaded = true;
            return nullptr;
        });
        card.DestroyEvent(card.CreateEvent([](SoundEvent) {}));
        EXPECT_FALSE(loaded);
        dialogs.Expect("Vatro kan ikke indlæse sin del til lyd, vatro-sound.\n\nCW kan ikke sendes, før Vatro er installeret igen.");
        EXPECT_THROW(card.CreateDevice(), RunTimeError);
    }
    EXPECT_TRUE(loaded);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

}  // namespace
}  // namespace vatro
