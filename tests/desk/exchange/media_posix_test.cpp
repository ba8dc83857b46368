// SPDX-License-Identifier: MIT
//
// Copies to other file systems: one that is too small, one that is read-only, one that was removed. The test mounts them, which
// only root can do.
#include <sys/mount.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "disk_files.h"
#include "exchange/backup.h"
#include "exchange/frmTilFloppy.h"
#include "frame/band_mode.h"
#include "frame/state.h"
#include "running_program.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

/// A file system in memory, mounted for the duration of the test.
class Medium {
public:
    explicit Medium(const fs::path& at) : at_(at) {
        fs::create_directories(at);
        mounted_ = mount("tmpfs", at.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    ~Medium() { TakeAway(); }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
    bool Mounted() const { return mounted_; }
    bool Protect() const { return mount("tmpfs", at_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k") == 0; }
    void TakeAway() {
        if (!mounted_) return;
        mounted_ = umount2(at_.c_str(), MNT_DETACH) != 0;
        std::error_code ignored;
        fs::remove(at_, ignored);
    }

private:
    fs::path at_;
    bool mounted_ = false;
};

class Media : public RunningProgram {
protected:
    Media() {
        fs::create_directory(root_ / "log");
        Start();
        InstallPlatform(front, {dialogs, settings, disk_, clock, help, instance, sound, printer, {1, 2, 3}});
        desk().gsLogLib = (root_ / "log").string();
        desk().gsBackupLib = (root_ / "kopi").string();
    }
    void SetUp() override {
        if (!medium_.Mounted()) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    }
    ~Media() override { InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}}); }

    void Put(const std::string& name, std::size_t length) const {
        std::ofstream(root_ / "log" / name, std::ios::binary) << std::string(length, 'x');
    }
    /// The size of the file, or -1 if it does not exist.
    long LengthOf(const std::string& name) const {
        std::error_code missing;
        const auto length = fs::file_size(root_ / "kopi" / name, missing);
        return missing ? -1 : static_cast<long>(length);
    }
    static void Copy() { Dispatch(BackUpLogs); }

    TemporaryDirectory directory_;
    fs::path root_ = directory_.Path();
    Medium medium_{root_ / "kopi"};
    DiskFiles disk_;
};

TEST_F(Media, TakeACopyOfEachLog) {
    Put("FD10mCW.txt", 100);
    Put("FD80mSSB.txt", 5000);
    Copy();
    EXPECT_EQ(LengthOf("FD10mCW.txt"), 100);
    EXPECT_EQ(LengthOf("FD80mSSB.txt"), 5000);
}

TEST_F(Media, ThatAreTooSmallGetTheLogsThatFit) {
    Put("FD10mCW.txt", 100);
    Put("FD80mSSB.txt", 200'000);
    dialogs.Expect("61");
    Copy();
    EXPECT_EQ(LengthOf("FD10mCW.txt"), 100);
    EXPECT_LT(LengthOf("FD80mSSB.txt"), 200'000);
    EXPECT_EQ(frmTilFloppy->copiedFiles.ListCount(), 11);
}

TEST_F(Media, ThatAreProtectedStopTheCopy) {
    Put("FD10mCW.txt", 100);
    Put("FD80mSSB.txt", 100);
    ASSERT_TRUE(medium_.Protect());
    dialogs.Expect("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen.");
    Copy();
    EXPECT_EQ(frmTilFloppy->copiedFiles.ListCount(), 2);
    EXPECT_EQ(LengthOf("FD10mCW.txt"), -1);
}

TEST_F(Media, ThatWereProtectedAfterACopyKeepTheOldOne) {
    Put("FD10mCW.txt", 100);
    Copy();
    Put("FD10mCW.txt", 200);
    ASSERT_TRUE(medium_.Protect());
    dialogs.Expect("Disketten er skrivebeskyttet. Fjern skrivebeskyttelsen og foretag Diskettekopi igen.");
    Copy();
    EXPECT_EQ(LengthOf("FD10mCW.txt"), 100);
}

TEST_F(Media, ThatHaveGoneStopTheCopy) {
    Put("FD10mCW.txt", 100);
    medium_.TakeAway();
    dialogs.Expect("Destination ikke fundet.");
    Copy();
    EXPECT_EQ(frmTilFloppy->copiedFiles.ListCount(), 2);
}

}  // namespace
}  // namespace vatro
