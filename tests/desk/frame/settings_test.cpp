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

class StoredSettings : public RunningProgram {
protected:
    /// The stored value of the key, or "none" if it is missing.
    std::string Stored(std::string_view key) { return settings.Read("Settings", key).value_or("none"); }
};

TEST_F(StoredSettings, AMissingKeyYieldsTheDefaultAndWritesNothing) {
    EXPECT_EQ(ReadSetting(setting::kKeyerTexts[1]), "CL?");
    EXPECT_EQ(ReadSetting(setting::kSpeed), 20);
    EXPECT_EQ(ReadSetting(setting::kVolume), 10000);
    EXPECT_TRUE(ReadSetting(setting::kShowCountry));
    EXPECT_TRUE(settings.written.empty());
}

TEST_F(StoredSettings, AKeyIsWrittenAsItsRowHasItAndReadWhateverItsCase) {
    StoreSetting(setting::kTablesDirectory, "c:\\vatro");
    EXPECT_EQ(settings.written, std::vector<std::string>{"gsFDlib"});
    EXPECT_EQ(ReadSetting(setting::kTablesDirectory), "c:\\vatro");
    EXPECT_EQ(Stored("FDLib"), "none");
}

TEST_F(StoredSettings, AFlagComesBackAsItWasWritten) {
    for (const bool flag : {true, false}) {
        StoreSetting(setting::kShowCountry, flag);
        EXPECT_EQ(Stored("VisLand"), flag ? "True" : "False");
        EXPECT_EQ(ReadSetting(setting::kShowCountry), flag);
    }
}

TEST_F(StoredSettings, ANumberIsWrittenAsDecimalDigits) {
    StoreSetting(setting::kMainLeft, -120);
    EXPECT_EQ(Stored("MainLeft"), "-120");
    EXPECT_EQ(ReadSetting(setting::kMainLeft), -120);
    StoreSetting(setting::kAutoTime, 0);
    EXPECT_EQ(Stored("AutoTid"), "0");
}

TEST_F(StoredSettings, ATextThatIsNoNumberIsAFailure) {
    settings.Write("Settings", "AutoTid", "ja");
    EXPECT_EQ(NumberOf([] { ReadSetting(setting::kAutoTime); }), 13);
    settings.Write("Settings", "VisLand", "ja");
    EXPECT_EQ(NumberOf([] { ReadSetting(setting::kShowCountry); }), 13);
}

TEST_F(StoredSettings, ANumberThatIsTooLargeForItsTypeIsAFailure) {
    settings.Write("Settings", "AutoTid", "32768");
    EXPECT_EQ(NumberOf([] { ReadSetting(setting::kAutoTime); }), 6);
    settings.Write("Settings", "MainLeft", "32768");
    EXPECT_EQ(ReadSetting(setting::kMainLeft), 32768);
}

TEST_F(StoredSettings, AWindowComesUpWhereItWasClosed) {
    Start();
    frmB4->Place(100, 200, 5000, 4000);
    frmB4.Unload();
    EXPECT_EQ(Stored("B4Left"), "100");
    EXPECT_EQ(Stored("B4Top"), "200");
    EXPECT_EQ(Stored("B4Width"), "5000");
    EXPECT_EQ(Stored("B4Height"), "4000");
    EXPECT_EQ(frmB4->Left(), 100);
    EXPECT_EQ(frmB4->Height(), 4000);
}

TEST_F(StoredSettings, AMinimisedWindowStoresNoPlace) {
    Start();
    frmB4->Place(100, 200, 5000, 4000);
    frmB4->UserState(WindowState::Minimised);
    frmB4.Unload();
    EXPECT_EQ(Stored("B4Left"), "none");
}

}  // namespace
}  // namespace vatro
