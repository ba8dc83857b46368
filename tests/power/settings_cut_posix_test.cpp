// SPDX-License-Identifier: MIT
//
// Cuts the power at every call with which a setting, or a batch of settings, is stored.
#include <gtest/gtest.h>

#include "disk_settings.h"
#include "power/disk_model.h"
#include "power/disk_record.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

class SettingsPowerCut : public ::testing::Test {
protected:
    void SetUp() override {
        if (!CanRecord()) GTEST_SKIP() << "no process may be looked at here";
    }
    std::filesystem::path File() const { return directory_.Path() / "vatro.ini"; }

    using Values = std::vector<std::optional<std::string>>;
    static Values ValuesOf(const DiskState& state) {
        const TemporaryDirectory found;
        WriteDisk(found.Path(), state);
        DiskSettings settings(found.Path() / "vatro.ini");
        return {settings.Read("Settings", "Band"), settings.Read("Settings", "Mode"), settings.Read("Settings", "gsLogLib")};
    }

    /// Cuts before each call of `life`, which tells when it has finished writing. Until then the values must be all old or all
    /// new; afterwards they must be the new ones.
    void Cut(const std::function<void(const Teller&)>& life, const Values& before, const Values& after) {
        DiskModel disk(ReadDisk(directory_.Path()));
        const std::vector<DiskCall> calls = RecordCalls(directory_.Path(), life);
        bool told = false;
        bool oldOnes = false;
        int syncs = 0;
        for (std::size_t cut = 0; cut <= calls.size(); ++cut) {
            for (const DiskState& state : disk.AfterPowerCut()) {
                const Values found = ValuesOf(state);
                ASSERT_TRUE(found == after || (!told && found == before)) << "before call " << cut << ": " << state.at("vatro.ini");
                oldOnes = oldOnes || found == before;
            }
            if (cut == calls.size()) break;
            disk.Do(calls[cut]);
            told = told || calls[cut].kind == DiskCall::Kind::Told;
            if (calls[cut].kind == DiskCall::Kind::Sync) ++syncs;
        }
        EXPECT_TRUE(told && oldOnes);
        EXPECT_EQ(syncs, 1);
        EXPECT_EQ(disk.Shown(), ReadDisk(directory_.Path())) << "the disk was not followed";
    }

    TemporaryDirectory directory_;
};

TEST_F(SettingsPowerCut, LeavesTheOldValueOrTheNewOneAndTheOtherValues) {
    DiskSettings(File()).Write("Settings", "Band", "80m");
    DiskSettings(File()).Write("Settings", "gsLogLib", "log");
    const auto life = [this](const Teller& teller) {
        DiskSettings(File()).Write("Settings", "Band", "40m");
        teller.Tell();
    };
    Cut(life, {"80m", std::nullopt, "log"}, {"40m", std::nullopt, "log"});
}

TEST_F(SettingsPowerCut, LeavesABatchWholeOrNothingOfIt) {
    DiskSettings(File()).Write("Settings", "Band", "80m");
    const auto life = [this](const Teller& teller) {
        DiskSettings settings(File());
        {
            const SettingsBatch batch(settings);
            settings.Write("Settings", "Band", "40m");
            settings.Write("Settings", "Mode", "CW");
            settings.Write("Settings", "gsLogLib", "log");
        }
        teller.Tell();
    };
    Cut(life, {"80m", std::nullopt, std::nullopt}, {"40m", "CW", "log"});
}

}  // namespace
}  // namespace vatro
