// SPDX-License-Identifier: MIT
//
// Pipes, permissions, other users, and file systems that appear and vanish. Tests that need root are skipped otherwise.
#include <grp.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "disk/temporary_world.h"
#include "extras/log_lines.h"
#include "recovery.h"
#include "safe_files.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kSomebody = 65534;

class SafeFilesPosix : public TemporaryWorld {
protected:
    void SetUp() override { fs::create_directory(root_ / "log"); }
    void TearDown() override { Unmount(); }

    SafeFiles::Surroundings Around() const {
        SafeFiles::Surroundings surroundings;
        surroundings.state = root_ / "state";
        surroundings.now = [] { return DateTime{2026, 9, 5, 14, 5, 30, 0}; };
        return surroundings;
    }
    bool Mount(const std::string& options = "size=4m") {
        mounted_ = mount("tmpfs", (root_ / "log").c_str(), "tmpfs", 0, options.c_str()) == 0;
        return mounted_;
    }
    void Unmount() {
        if (mounted_) mounted_ = umount2((root_ / "log").c_str(), MNT_DETACH) != 0;
    }
    void Rewrite(const std::string& line) {
        files_.Open(1, At("log/FDkopi.txt"), FileMode::Output);
        files_.PrintLine(1, line);
        files_.Close(1);
        files_.Replace(At("log/FDkopi.txt"), At("log/FD80mSSB.txt"));
    }
    /// Returns the result of `work` in a process of the unprivileged user "nobody".
    template <class Work>
    static int AsSomebody(Work work) {
        const pid_t child = fork();
        if (child == 0) {
            if (setgroups(0, nullptr) != 0 || setgid(kSomebody) != 0 || setuid(kSomebody) != 0) _exit(99);
            _exit(work());
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    bool mounted_ = false;
    DiskFiles disk_;
    SafeFiles files_{disk_, Around()};
};

TEST_F(SafeFilesPosix, APipeDeviceOrSocketIsAFailedOpeningAtOnce) {
    ASSERT_EQ(mkfifo((root_ / "log/FD80mSSB.txt").c_str(), 0666), 0);
    fs::create_symlink("/dev/zero", root_ / "log/FD40mSSB.txt");
    const int made = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (root_ / "log/FD20mSSB.txt").string().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    for (const char* name : {"log/FD80mSSB.txt", "log/FD40mSSB.txt", "log/FD20mSSB.txt"})
        for (const FileMode mode : {FileMode::Input, FileMode::Append, FileMode::Output})
            EXPECT_EQ(NumberOf([&] { files_.Open(1, At(name), mode); }), 75) << name;
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("log/FD80mSSB.txt"), At("log/a.txt")); }), 75);
    close(made);
}

TEST_F(SafeFilesPosix, ALogThatCannotBeOpenedIsToldEachTime) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: only root can be another user";
    Put("log/FD80mSSB.txt", LogOf(2));
    fs::permissions(root_ / "log/FD80mSSB.txt", fs::perms::none);
    fs::permissions(root_, fs::perms::all);
    fs::permissions(root_ / "log", fs::perms::all);
    EXPECT_EQ(AsSomebody([&] {
                  for (int time = 0; time < 2; ++time) {
                      if (NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Input); }) != 70) return 1;
                      if (files_.TakeNotices().size() != 1) return 2;
                  }
                  return 0;
              }),
              0);
}

TEST_F(SafeFilesPosix, OwnerAndRightsSurviveARewrite) {
    Put("log/FD80mSSB.txt", LogOf(1));
    ASSERT_EQ(chmod((root_ / "log/FD80mSSB.txt").c_str(), 0664), 0);
    const bool root = geteuid() == 0;
    if (root) {
        ASSERT_EQ(chown((root_ / "log/FD80mSSB.txt").c_str(), kSomebody, kSomebody), 0);
    }
    Rewrite(ContactLine(1, 1));
    struct stat status {};
    ASSERT_EQ(stat((root_ / "log/FD80mSSB.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0664U);
    if (root) {
        EXPECT_EQ(status.st_uid, kSomebody);
    }
}

TEST_F(SafeFilesPosix, AnotherUserIsKeptAway) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: only root can be another user";
    fs::permissions(root_, fs::perms::all);
    fs::permissions(root_ / "log", fs::perms::all);
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    const auto other = [&] {
        DiskFiles disk;
        return SafeFiles(disk, Around()).TakeDirectory(At("log")) ? 1 : 0;
    };
    EXPECT_EQ(AsSomebody(other), 0);
}

TEST_F(SafeFilesPosix, TheLockOfAKilledCopyIsGone) {
    const pid_t child = fork();
    if (child == 0) {
        DiskFiles disk;
        SafeFiles files(disk, Around());
        if (files.TakeDirectory(At("log"))) raise(SIGKILL);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_TRUE(files_.TakeDirectory(At("log")));
}

TEST_F(SafeFilesPosix, ADirectoryThatMayOnlyBeReadDoesNotRefuse) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    ASSERT_TRUE(Mount());
    Put("log/FD80mSSB.txt", LogOf(2));
    ASSERT_EQ(mount("tmpfs", (root_ / "log").c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""), 0);
    EXPECT_TRUE(files_.TakeDirectory(At("log")));
    EXPECT_EQ(ReadLines(files_, At("log/FD80mSSB.txt")).size(), 2U);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 70);
}

TEST_F(SafeFilesPosix, ALogThatCannotBeWrittenIsToldBeforeItIsRead) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    ASSERT_TRUE(Mount());
    Put("log/FD80mSSB.txt", LogOf(2));
    const auto toldOfLog = [&] {
        const History history(root_ / "log", root_ / "state", [] { return DateTime{2026, 9, 5, 14, 5, 30, 0}; });
        int told = 0;
        for (const Finding& finding : LookForDamage({root_ / "log", root_, "80mSSB", {2026, 9, 5, 14, 5, 30, 0}}, history))
            if (finding.file == "FD80mSSB.txt" && finding.action == Finding::Action::None) ++told;
        return told;
    };
    EXPECT_EQ(toldOfLog(), 0);
    ASSERT_EQ(mount("tmpfs", (root_ / "log").c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""), 0);
    EXPECT_EQ(toldOfLog(), 1);
}

TEST_F(SafeFilesPosix, NothingIsWrittenUnderAStickThatWasPulled) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    ASSERT_TRUE(Mount());
    Put("log/FD80mSSB.txt", LogOf(2));
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, ContactLine(3, 3));
    Unmount();
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 76);
    EXPECT_EQ(NumberOf([&] { Rewrite(ContactLine(1, 1)); }), 76);
    EXPECT_TRUE(fs::is_empty(root_ / "log"));
}

TEST_F(SafeFilesPosix, NothingIsWrittenToAStickThatComesLate) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    EXPECT_EQ(NumberOf([&] { ReadLines(files_, At("log/FD80mSSB.txt")); }), 53);
    files_.CloseLeftovers();
    ASSERT_TRUE(Mount());
    Put("log/FD80mSSB.txt", LogOf(2));
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 76);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(2));
}

TEST_F(SafeFilesPosix, AFullDiskLeavesTheLogAsItWas) {
    if (geteuid() != 0) GTEST_SKIP() << "skipped: file systems can only be mounted by root";
    ASSERT_TRUE(Mount("size=64k"));
    Put("log/FD80mSSB.txt", LogOf(200));
    ReadLines(files_, At("log/FD80mSSB.txt"));
    Put("log/filler", std::string(47'000, 'x'));
    files_.Open(1, At("log/FDkopi.txt"), FileMode::Output);
    const int failed = NumberOf([&] {
        for (int i = 0; i < 3000; ++i) files_.PrintLine(1, ContactLine(i, i));
        files_.Close(1);
    });
    EXPECT_EQ(failed, 61);
    files_.CloseLeftovers();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(200));
}

}  // namespace
}  // namespace vatro
