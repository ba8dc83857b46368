// SPDX-License-Identifier: MIT
//
// File names on a system that distinguishes upper and lower case and mounts its volumes in directories.
#include "names.h"

#include <gmock/gmock.h>

#ifdef __linux__
#include <sys/mount.h>
#endif

#include "disk/temporary_world.h"
#include "volumes_posix.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

class NamesPosixTest : public TemporaryWorld {
protected:
    DiskFiles files_;
};

TEST_F(NamesPosixTest, TheExactSpellingWins) {
    Put("LANDE.TXT", "upper");
    Put("Lande.txt", "mixed");
    Put("lande.txt", "lower");
    EXPECT_THAT(ReadLines(files_, At("lande.txt")), ElementsAre("lower"));
    EXPECT_THAT(ReadLines(files_, At("Lande.txt")), ElementsAre("mixed"));
    // Otherwise the first one in alphabetical order.
    EXPECT_THAT(ReadLines(files_, At("laNDE.txt")), ElementsAre("upper"));
}

TEST_F(NamesPosixTest, TheRootIsReportedWithoutItsSeparator) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path("/");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_EQ(directory, "");
}

TEST_F(NamesPosixTest, NativePathsTakeEitherSeparator) {
    EXPECT_EQ(NativePath("/log\\Ål.txt"_t), std::filesystem::path("/log/Ål.txt"));
    EXPECT_EQ(NativePath("a.txt"), std::filesystem::path("a.txt"));
    EXPECT_EQ(NativePath("a:b.txt"), std::filesystem::path("a:b.txt"));
}

TEST_F(NamesPosixTest, WithoutAVolumeDriveAIsNotFound) {
    std::filesystem::path volume;
    const int number = NumberOf([&] { volume = NativePath("A:\\"); });
    if (number == 0) GTEST_SKIP() << "a volume is mounted at " << volume;
    EXPECT_EQ(number, 76);
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), "a:\\a.txt"); }), 76);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("none.txt"), "a:\\none.txt"); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, "a:\\a.txt", FileMode::Input); }), 76);
}

TEST_F(NamesPosixTest, ADirectoryThatIsNotMountedIsNoVolume) {
    std::filesystem::create_directory(root_ / "STICK");
    const std::filesystem::path directories[] = {root_, root_ / "missing"};
    EXPECT_EQ(FirstVolume(directories), std::nullopt);
}

#ifdef __linux__
TEST_F(NamesPosixTest, TheFirstMountedVolumeByNameIsTaken) {
    std::filesystem::create_directory(root_ / "A-EMPTY");
    for (const char* name : {"STICK2", "STICK1"}) {
        std::filesystem::create_directory(root_ / name);
        if (mount("tmpfs", (root_ / name).c_str(), "tmpfs", 0, "size=16k") != 0) {
            umount2((root_ / "STICK2").c_str(), MNT_DETACH);
            GTEST_SKIP() << "no right to mount a volume";
        }
    }
    const std::filesystem::path directories[] = {root_ / "missing", root_};
    const auto volume = FirstVolume(directories);
    umount2((root_ / "STICK1").c_str(), MNT_DETACH);
    umount2((root_ / "STICK2").c_str(), MNT_DETACH);
    EXPECT_EQ(volume, root_ / "STICK1");
}
#endif

}  // namespace
}  // namespace vatro
