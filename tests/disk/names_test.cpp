// SPDX-License-Identifier: MIT
#include "disk/names.h"

#include <gmock/gmock.h>

#ifdef __linux__
#include <sys/mount.h>
#endif

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

class NamesTest : public TemporaryWorld {
protected:
    DiskFiles files_;
};

TEST_F(NamesTest, AFileIsFoundHoweverItIsSpelled) {
    Put("FD80mSSB.txt", "a\r\n");
    EXPECT_THAT(Lines(files_, At("FD80mssb.TXT")), ElementsAre("a"));
    EXPECT_THAT(Lines(files_, At("fd80MSSB.txt")), ElementsAre("a"));
}

TEST_F(NamesTest, DirectoriesAreFoundHoweverTheyAreSpelled) {
    std::filesystem::create_directories(root_ / "Log" / "Deep");
    Put("Log/Deep/ukendt.txt", "a\r\n");
    EXPECT_THAT(Lines(files_, At("LOG\\deep\\Ukendt.txt")), ElementsAre("a"));
    EXPECT_THAT(Lines(files_, At("lOG/./DEEP/../deep/UKENDT.TXT")), ElementsAre("a"));
}

TEST_F(NamesTest, DanishLettersHaveNoCaseEither) {
    std::filesystem::create_directory(root_ / "Rødovre");
    Put("Rødovre/ÆBLEGRØD på Ål.txt", "a\r\n");
    EXPECT_THAT(Lines(files_, At("RØDOVRE\\æblegrød PÅ ål.TXT"_t)), ElementsAre("a"));
}

TEST_F(NamesTest, NewFilesGetTheirDanishNamesInUtf8) {
    WriteFile(files_, At("Æøå.txt"_t), FileMode::Output, "a");
    EXPECT_THAT(Names(), ElementsAre("Æøå.txt"));
}

TEST_F(NamesTest, TheExactSpellingWins) {
    Put("LANDE.TXT", "upper");
    Put("Lande.txt", "mixed");
    Put("lande.txt", "lower");
    EXPECT_THAT(Lines(files_, At("lande.txt")), ElementsAre("lower"));
    EXPECT_THAT(Lines(files_, At("Lande.txt")), ElementsAre("mixed"));
    // Otherwise the first by name.
    EXPECT_THAT(Lines(files_, At("laNDE.txt")), ElementsAre("upper"));
}

TEST_F(NamesTest, WritingTakesOverTheNameThatIsThere) {
    Put("ukendt.txt", "a\r\n");
    WriteFile(files_, At("Ukendt.TXT"), FileMode::Append, "b");
    EXPECT_THAT(Names(), ElementsAre("ukendt.txt"));
    EXPECT_EQ(Content("ukendt.txt"), "a\r\nb\r\n");
    WriteFile(files_, At("UKENDT.txt"), FileMode::Output, "c");
    EXPECT_THAT(Names(), ElementsAre("ukendt.txt"));
    EXPECT_EQ(Content("ukendt.txt"), "c\r\n");
}

TEST_F(NamesTest, ANewFileKeepsItsSpellingInADirectoryOfAnother) {
    std::filesystem::create_directory(root_ / "LOG");
    WriteFile(files_, At("log\\FD10mCW.txt"), FileMode::Append, "a");
    EXPECT_THAT(Names("LOG"), ElementsAre("FD10mCW.txt"));
    EXPECT_THAT(Names(), ElementsAre("LOG"));
}

TEST_F(NamesTest, ACharacterOutsideTheCodePageIsMetByItsQuestionMark) {
    std::filesystem::create_directory(root_ / "Łódź");
    Put("Łódź/log.txt", "a\r\n");
    const std::string path = FromUtf8((root_ / "Łódź" / "log.txt").string());
    EXPECT_THAT(path, ::testing::EndsWith("?\xF3\x64?/log.txt"));
    EXPECT_THAT(Lines(files_, path), ElementsAre("a"));
    WriteFile(files_, FromUtf8((root_ / "Łódź" / "new.txt").string()), FileMode::Output, "b");
    EXPECT_EQ(Content("Łódź/new.txt"), "b\r\n");
}

TEST_F(NamesTest, FindPathTellsWhatIsMissing) {
    std::filesystem::create_directory(root_ / "Log");
    Put("Log/a.txt", "");
    const FoundPath there = FindPath(root_ / "LOG" / "A.TXT");
    EXPECT_TRUE(there.exists);
    EXPECT_EQ(there.path, root_ / "Log" / "a.txt");
    const FoundPath noFile = FindPath(root_ / "LOG" / "B.TXT");
    EXPECT_FALSE(noFile.exists);
    EXPECT_TRUE(noFile.directoryExists);
    EXPECT_EQ(noFile.path, root_ / "Log" / "B.TXT");
    const FoundPath noDirectory = FindPath(root_ / "data" / "B.TXT");
    EXPECT_FALSE(noDirectory.exists);
    EXPECT_FALSE(noDirectory.directoryExists);
}

TEST_F(NamesTest, ABareNameLiesInTheCurrentDirectory) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(root_);
    WriteFile(files_, "Lande.txt", FileMode::Output, "a");
    const auto lines = Lines(files_, "LANDE.TXT");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_THAT(lines, ElementsAre("a"));
    EXPECT_EQ(Content("Lande.txt"), "a\r\n");
    EXPECT_EQ(directory, NativeText(std::filesystem::canonical(root_)));
}

TEST_F(NamesTest, TheRootIsReportedWithoutItsSeparator) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path("/");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_EQ(directory, "");
}

TEST_F(NamesTest, AnOwnerOfTheWorldMapsItsPathsAsItLikes) {
    const std::filesystem::path root = root_;
    DiskFiles world([root](std::string_view path) { return root / std::string(path.substr(path.find('\\') + 1)); }, '\\', "data");
    EXPECT_EQ(world.Separator(), '\\');
    EXPECT_EQ(world.CurrentDirectory(), "data");
    WriteFile(world, "x:\\a.txt", FileMode::Output, "a");
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

TEST_F(NamesTest, NativePathsTakeEitherSeparator) {
    EXPECT_EQ(NativePath("/log\\Ål.txt"_t), std::filesystem::path("/log/Ål.txt"));
    EXPECT_EQ(NativePath("a.txt"), std::filesystem::path("a.txt"));
    EXPECT_EQ(NativePath("a:b.txt"), std::filesystem::path("a:b.txt"));
}

TEST_F(NamesTest, WithoutAVolumeDriveAIsNotFound) {
    std::filesystem::path volume;
    const int number = NumberOf([&] { volume = NativePath("A:\\"); });
    if (number == 0) GTEST_SKIP() << "a volume is mounted at " << volume;
    EXPECT_EQ(number, 76);
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), "a:\\a.txt"); }), 76);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("none.txt"), "a:\\none.txt"); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, "a:\\a.txt", FileMode::Input); }), 76);
}

TEST_F(NamesTest, ADirectoryThatIsNotMountedIsNoVolume) {
    std::filesystem::create_directory(root_ / "STICK");
    const std::filesystem::path directories[] = {root_, root_ / "missing"};
    EXPECT_EQ(FirstVolume(directories), std::nullopt);
}

#ifdef __linux__
TEST_F(NamesTest, TheFirstMountedVolumeByNameIsTaken) {
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
