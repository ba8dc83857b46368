// SPDX-License-Identifier: MIT
//
// The power goes at every call with which a setting is stored.
#include <gtest/gtest.h>

#include <algorithm>

#include "power/disk_model.h"
#include "power/disk_record.h"
#include "qt/settings_store.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

std::optional<std::string> StoredBand(const DiskState& state) {
    const TemporaryDirectory directory;
    WriteDisk(directory.Path(), state);
    return QtSettings(QString::fromStdString((directory.Path() / "vatro.ini").string())).Read("Settings", "Band");
}

TEST(SettingsPowerCut, LeavesTheOldValueOrTheNewOneAndTheOtherValues) {
    if (!CanRecord()) GTEST_SKIP() << "no process may be looked at here";
    const TemporaryDirectory directory;
    const auto store = [&](const std::string& band) {
        QtSettings settings(QString::fromStdString((directory.Path() / "vatro.ini").string()));
        settings.Write("Settings", "Band", band);
    };
    store("80m");
    QtSettings(QString::fromStdString((directory.Path() / "vatro.ini").string())).Write("Settings", "gsLogLib", "log");
    DiskModel disk(ReadDisk(directory.Path()));
    const std::vector<DiskCall> calls = RecordCalls(directory.Path(), [&](const Teller& teller) {
        store("40m");
        teller.Tell();
    });
    bool told = false;
    bool oldOne = false;
    for (std::size_t cut = 0; cut <= calls.size(); ++cut) {
        for (const DiskState& state : disk.AfterPowerCut()) {
            ASSERT_TRUE(state.contains("vatro.ini")) << "before call " << cut;
            const auto band = StoredBand(state);
            ASSERT_TRUE(band == "40m" || (!told && band == "80m")) << "before call " << cut << ": " << state.at("vatro.ini");
            ASSERT_NE(state.at("vatro.ini").find("gsLogLib=log"), std::string::npos) << "before call " << cut;
            oldOne = oldOne || band == "80m";
        }
        if (cut == calls.size()) break;
        disk.Do(calls[cut]);
        told = told || calls[cut].kind == DiskCall::Kind::Told;
    }
    EXPECT_TRUE(told && oldOne);
    EXPECT_EQ(disk.Shown(), ReadDisk(directory.Path())) << "the disk was not followed";
}

}  // namespace
}  // namespace vatro
