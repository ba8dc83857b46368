// SPDX-License-Identifier: MIT
#include "frame/settings.h"

#include "entry/frmB4.h"
#include "running_program.h"

namespace vatro {
namespace {

int NumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

class StoredSettings : public RunningProgram {};

TEST_F(StoredSettings, AMissingKeyYieldsTheDefaultAndWritesNothing) {
    EXPECT_EQ(ReadText("CW", "Tekst9", "x"), "x");
    EXPECT_EQ(ReadNumber("CW", "WPM", 20), 20);
    EXPECT_TRUE(ReadFlag("Settings", "VisLand", true));
    EXPECT_TRUE(settings.written.empty());
}

TEST_F(StoredSettings, KeysAreOneWhateverTheirCase) {
    StoreText("Settings", "gsFDlib", "c:\\vatro");
    EXPECT_EQ(ReadText("Settings", "gsFDLib"), "c:\\vatro");
    EXPECT_EQ(ReadText("Settings", "FDLib", "none"), "none");
}

TEST_F(StoredSettings, AFlagComesBackAsItWasWritten) {
    for (const bool flag : {true, false}) {
        StoreFlag("Settings", "VisLand", flag);
        EXPECT_EQ(ReadText("Settings", "VisLand"), flag ? "True" : "False");
        EXPECT_EQ(ReadFlag("Settings", "VisLand", !flag), flag);
    }
}

TEST_F(StoredSettings, ANumberIsWrittenAsDecimalDigits) {
    StoreNumber("Settings", "MainLeft", -120);
    EXPECT_EQ(ReadText("Settings", "MainLeft"), "-120");
    EXPECT_EQ(ReadNumber("Settings", "MainLeft", 0), -120);
}

TEST_F(StoredSettings, ATextThatIsNoNumberIsAFailure) {
    StoreText("Settings", "AutoTid", "ja");
    EXPECT_EQ(NumberOf([] { ReadNumber("Settings", "AutoTid", 1); }), 13);
    EXPECT_EQ(NumberOf([] { ReadFlag("Settings", "AutoTid", true); }), 13);
    StoreText("Settings", "AutoTid", "32768");
    EXPECT_EQ(NumberOf([] { ReadNumber("Settings", "AutoTid", 1); }), 6);
}

TEST_F(StoredSettings, AWindowComesUpWhereItWasClosed) {
    Start();
    frmB4->Place(100, 200, 5000, 4000);
    frmB4.Unload();
    EXPECT_EQ(ReadText("Settings", "B4Left"), "100");
    EXPECT_EQ(ReadText("Settings", "B4Top"), "200");
    EXPECT_EQ(ReadText("Settings", "B4Width"), "5000");
    EXPECT_EQ(ReadText("Settings", "B4Height"), "4000");
    EXPECT_EQ(frmB4->Left(), 100);
    EXPECT_EQ(frmB4->Height(), 4000);
}

TEST_F(StoredSettings, AMinimisedWindowStoresNoPlace) {
    Start();
    frmB4->Place(100, 200, 5000, 4000);
    frmB4->UserState(WindowState::Minimised);
    frmB4.Unload();
    EXPECT_EQ(ReadText("Settings", "B4Left", "none"), "none");
}

}  // namespace
}  // namespace vatro
