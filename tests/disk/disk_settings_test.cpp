// SPDX-License-Identifier: MIT
#include "disk_settings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "codepage.h"
#include "names.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

using namespace literals;

class SettingsOnDisk : public ::testing::Test {
protected:
    std::string Content() const {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void Put(std::string_view content) const { std::ofstream(file, std::ios::binary) << content; }

    TemporaryDirectory directory;
    std::filesystem::path file = directory.Path() / "vatro.ini";
};

TEST_F(SettingsOnDisk, AreOnDiskWhenWriteReturns) {
    DiskSettings store(file);
    store.Write("Settings", "MyCall", "OZ1AB/P");
    EXPECT_EQ(Content(), "[Settings]\nMyCall=OZ1AB/P\n");
    EXPECT_EQ(DiskSettings(file).Read("settings", "MYCALL"), "OZ1AB/P");
}

TEST_F(SettingsOnDisk, CompareKeysWithoutRegardToCase) {
    DiskSettings store(file);
    store.Write("Settings", "gsFDLib", "one");
    store.Write("settings", "gsFDlib", "two");
    EXPECT_EQ(store.Read("SETTINGS", "GSFDLIB"), "two");
    EXPECT_EQ(store.Read("Settings", "FDLib"), std::nullopt);
}

TEST_F(SettingsOnDisk, AreNotWrittenByReading) {
    DiskSettings store(file);
    EXPECT_EQ(store.Read("Settings", "Band"), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(SettingsOnDisk, GoToTheDiskAtTheEndOfTheOutermostBatch) {
    DiskSettings store(file);
    {
        const SettingsBatch outer(store);
        store.Write("Settings", "Band", "80m");
        {
            const SettingsBatch inner(store);
            store.Write("Settings", "Mode", "CW");
        }
        EXPECT_EQ(store.Read("Settings", "Mode"), "CW");
        EXPECT_FALSE(std::filesystem::exists(file));
    }
    EXPECT_EQ(Content(), "[Settings]\nBand=80m\nMode=CW\n");
}

TEST_F(SettingsOnDisk, AreFlushedInTheMiddleOfABatch) {
    DiskSettings store(file);
    const SettingsBatch batch(store);
    store.Write("Settings", "Band", "80m");
    store.Flush();
    EXPECT_EQ(Content(), "[Settings]\nBand=80m\n");
}

TEST_F(SettingsOnDisk, KeepWhatSomebodyElseHasWrittenMeanwhile) {
    Put("[Settings]\nBand=80m\n");
    DiskSettings store(file);
    Put("[Settings]\nBand=80m\nMode=CW\n");
    store.Write("Settings", "Band", "40m");
    EXPECT_EQ(Content(), "[Settings]\nBand=40m\nMode=CW\n");
    EXPECT_EQ(store.Read("Settings", "Mode"), "CW");
}

TEST_F(SettingsOnDisk, MakeTheirDirectory) {
    file = directory.Path() / "new" / "vatro" / "vatro.ini";
    DiskSettings(file).Write("Settings", "Band", "80m");
    EXPECT_EQ(Content(), "[Settings]\nBand=80m\n");
}

TEST_F(SettingsOnDisk, TakeNoHarmFromAWritingThatWasCutOff) {
    std::ofstream(file.string() + ".new") << std::string(5000, 'x');
    DiskSettings(file).Write("Settings", "Band", "80m");
    EXPECT_EQ(Content(), "[Settings]\nBand=80m\n");
    EXPECT_FALSE(std::filesystem::exists(file.string() + ".new"));
}

TEST_F(SettingsOnDisk, KeepTheRightsOfTheirFile) {
    using std::filesystem::perms;
    Put("[Settings]\nBand=80m\n");
    std::filesystem::permissions(file, perms::owner_read | perms::owner_write);
    const perms before = std::filesystem::status(file).permissions();
    DiskSettings(file).Write("Settings", "Band", "40m");
    EXPECT_EQ(std::filesystem::status(file).permissions(), before);
}

TEST_F(SettingsOnDisk, TellOfALossUntilTheDiskTakesThem) {
    const std::filesystem::path place = directory.Path() / "place";
    // A file has the name of the settings directory.
    std::ofstream(place) << "";
    DiskSettings store(place / "vatro.ini");
    EXPECT_FALSE(store.Loss());
    store.Write("Settings", "MyCall", "OZ1AB");
    ASSERT_TRUE(store.Loss());
    EXPECT_NE(store.Loss()->text.find(NativeText(place / "vatro.ini")), std::string::npos) << store.Loss()->text;
    EXPECT_EQ(store.Read("Settings", "MyCall"), "OZ1AB");

    std::filesystem::remove(place);
    store.Write("Settings", "Band", "80m");
    EXPECT_FALSE(store.Loss());
    file = place / "vatro.ini";
    EXPECT_EQ(Content(), "[Settings]\nMyCall=OZ1AB\nBand=80m\n");
}

}  // namespace
}  // namespace vatro
