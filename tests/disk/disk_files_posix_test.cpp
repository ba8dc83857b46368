// SPDX-License-Identifier: MIT
//
// Files on a disk that is full, protected or limited, set up in ways that only POSIX systems offer.
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#ifdef __linux__
#include <sys/mount.h>
#endif

#include "disk/temporary_world.h"
#include "without_root.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

using DiskFilesPosixTest = DiskWorld;

TEST_F(DiskFilesPosixTest, NothingIsWrittenToAProtectedDirectory) {
    Put("a.txt", "a");
    std::filesystem::permissions(root_, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const WithoutRoot user(root_);
    ASSERT_TRUE(user.Holds());
    EXPECT_EQ(OpenFails(1, At("b.txt"), FileMode::Output), 70);
    EXPECT_EQ(OpenFails(1, At("b.txt"), FileMode::Append), 70);
    EXPECT_EQ(NumberOf([&] { files_.Delete(At("a.txt")); }), 70);
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("a.txt"), At("b.txt")); }), 70);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), At("b.txt")); }), 70);
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

/// While this object lives, no file can grow beyond a size.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(DiskFilesPosixTest, AFailedAppendLeavesNoHalfALine) {
    const std::string before = std::string(4998, 'x') + "\r\n";
    Put("a.txt", before);
    int number = 0;
    int again = 0;
    {
        const SizeLimit limit(5040);
        files_.Open(1, At("a.txt"), FileMode::Append);
        files_.PrintLine(1, std::string(79, 'y'));
        number = NumberOf([&] { files_.Close(1); });
        files_.Open(1, At("a.txt"), FileMode::Append);
        files_.PrintLine(1, std::string(30, 'z'));
        again = NumberOf([&] { files_.Close(1); });
    }
    EXPECT_EQ(number, 61);
    EXPECT_EQ(again, 0);
    EXPECT_EQ(Content("a.txt"), before + std::string(30, 'z') + "\r\n");
}

TEST_F(DiskFilesPosixTest, AFailedCloseFreesTheNumber) {
    Put("a.txt", "a\r\n");
    {
        const SizeLimit limit(0);
        files_.Open(1, At("b.txt"), FileMode::Output);
        files_.PrintLine(1, "b");
        EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 61);
    }
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 0);
    EXPECT_THAT(ReadLines(files_, At("a.txt")), ElementsAre("a"));
    WriteFile(files_, At("b.txt"), FileMode::Append, "b");
    EXPECT_EQ(Content("b.txt"), "b\r\n");
}

TEST_F(DiskFilesPosixTest, ALongOutputThatDoesNotFitIsToldByThePieceAndByClose) {
    const SizeLimit limit(40'000);
    files_.Open(1, At("b.txt"), FileMode::Output);
    const std::string piece(30'000, 'x');
    files_.Print(1, piece);
    const int told = NumberOf([&] {
        for (int i = 0; i < 3; ++i) files_.Print(1, piece);
    });
    EXPECT_EQ(told, 61);
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 61);
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 0);
}

#ifdef __linux__
TEST_F(DiskFilesPosixTest, AFullDeviceIsToldAtClose) {
    files_.Open(2, "/dev/full", FileMode::Output);
    files_.PrintLine(2, "a");
    EXPECT_EQ(NumberOf([&] { files_.Close(2); }), 61);
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), "/dev/full"); }), 61);
}

TEST_F(DiskFilesPosixTest, AFullDiskLosesNothingThatWasThere) {
    std::filesystem::create_directory(root_ / "stick");
    if (mount("tmpfs", (root_ / "stick").c_str(), "tmpfs", 0, "size=64k") != 0) GTEST_SKIP() << "no right to mount a small disk";
    const std::string before = std::string(61 * 1024, 'x') + "\r\n";
    Put("stick/a.txt", before);
    files_.Open(1, At("stick/a.txt"), FileMode::Append);
    files_.PrintLine(1, std::string(10'000, 'y'));
    const int append = NumberOf([&] { files_.Close(1); });
    const std::string after = Content("stick/a.txt");

    Put("big.txt", before);
    const int copy = NumberOf([&] { files_.Copy(At("big.txt"), At("stick/b.txt")); });
    const std::string source = Content("big.txt");

    files_.Delete(At("stick/b.txt"));
    const int small = NumberOf([&] { WriteFile(files_, At("stick/a.txt"), FileMode::Append, "z"); });
    const std::string last = Content("stick/a.txt");
    umount2((root_ / "stick").c_str(), MNT_DETACH);

    EXPECT_EQ(append, 61);
    EXPECT_EQ(after, before);
    EXPECT_EQ(copy, 61);
    EXPECT_EQ(source, before);
    EXPECT_EQ(small, 0);
    EXPECT_EQ(last, before + "z\r\n");
}

TEST_F(DiskFilesPosixTest, AReadOnlyDiskIsPermissionDenied) {
    std::filesystem::create_directory(root_ / "stick");
    if (mount("tmpfs", (root_ / "stick").c_str(), "tmpfs", MS_RDONLY, "size=64k") != 0) GTEST_SKIP() << "no right to mount a disk";
    Put("a.txt", "a");
    const int open = OpenFails(1, At("stick/a.txt"), FileMode::Append);
    const int copy = NumberOf([&] { files_.Copy(At("a.txt"), At("stick/a.txt")); });
    const int rename = NumberOf([&] { files_.Rename(At("a.txt"), At("stick/a.txt")); });
    umount2((root_ / "stick").c_str(), MNT_DETACH);
    EXPECT_EQ(open, 70);
    EXPECT_EQ(copy, 70);
    EXPECT_NE(rename, 0);
    EXPECT_EQ(Content("a.txt"), "a");
}
#endif

TEST(FailureOfPosix, MapsTheSystemsNumbers) {
    EXPECT_EQ(FailureOf(ENOENT), Failure::FileNotFound);
    EXPECT_EQ(FailureOf(ENOTDIR), Failure::PathNotFound);
    for (const int error : {EROFS, EACCES, EPERM}) EXPECT_EQ(FailureOf(error), Failure::PermissionDenied);
    for (const int error : {ENOSPC, EFBIG, EDQUOT}) EXPECT_EQ(FailureOf(error), Failure::DiskFull);
    for (const int error : {EIO, ENXIO, ENODEV}) EXPECT_EQ(FailureOf(error), Failure::DiskNotReady);
    for (const int error : {EISDIR, EMFILE, EXDEV, ENAMETOOLONG}) EXPECT_EQ(FailureOf(error), Failure::PathFileAccess);
}

}  // namespace
}  // namespace vatro
