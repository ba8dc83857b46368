// SPDX-License-Identifier: MIT
#include "names.h"

#include <gmock/gmock.h>

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
    EXPECT_THAT(ReadLines(files_, At("FD80mssb.TXT")), ElementsAre("a"));
    EXPECT_THAT(ReadLines(files_, At("fd80MSSB.txt")), ElementsAre("a"));
}

TEST_F(NamesTest, DirectoriesAreFoundHoweverTheyAreSpelled) {
    std::filesystem::create_directories(root_ / "Log" / "Deep");
    Put("Log/Deep/ukendt.txt", "a\r\n");
    EXPECT_THAT(ReadLines(files_, At("LOG\\deep\\Ukendt.txt")), ElementsAre("a"));
    EXPECT_THAT(ReadLines(files_, At("lOG/./DEEP/../deep/UKENDT.TXT")), ElementsAre("a"));
}

TEST_F(NamesTest, DanishLettersHaveNoCaseEither) {
    std::filesystem::create_directory(root_ / PathOfUtf8("Rødovre"));
    Put("Rødovre/ÆBLEGRØD på Ål.txt", "a\r\n");
    EXPECT_THAT(ReadLines(files_, At("RØDOVRE\\æblegrød PÅ ål.TXT"_t)), ElementsAre("a"));
}

TEST_F(NamesTest, NewFilesGetTheirDanishNamesInUtf8) {
    WriteFile(files_, At("Æøå.txt"_t), FileMode::Output, "a");
    EXPECT_THAT(Names(), ElementsAre("Æøå.txt"));
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
    std::filesystem::create_directory(root_ / PathOfUtf8("Łódź"));
    Put("Łódź/log.txt", "a\r\n");
    const std::string directory = NativeText(PathOfUtf8("Łódź"));
    EXPECT_EQ(directory, "?\xF3\x64?");
    EXPECT_THAT(ReadLines(files_, At(directory + "/log.txt")), ElementsAre("a"));
    WriteFile(files_, At(directory + "/new.txt"), FileMode::Output, "b");
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
    const auto lines = ReadLines(files_, "LANDE.TXT");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_THAT(lines, ElementsAre("a"));
    EXPECT_EQ(Content("Lande.txt"), "a\r\n");
    EXPECT_EQ(directory, NativeText(std::filesystem::canonical(root_)));
}

TEST_F(NamesTest, AnOwnerOfTheWorldMapsItsPathsAsItLikes) {
    const std::filesystem::path root = root_;
    DiskFiles world([root](std::string_view path) { return root / std::string(path.substr(path.find('\\') + 1)); }, '\\', "data");
    EXPECT_EQ(world.Separator(), '\\');
    EXPECT_EQ(world.CurrentDirectory(), "data");
    WriteFile(world, "x:\\a.txt", FileMode::Output, "a");
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

}  // namespace
}  // namespace vatro
