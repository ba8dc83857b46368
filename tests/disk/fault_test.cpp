// SPDX-License-Identifier: MIT
#include "fault.h"

#include <gmock/gmock.h>

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using Step = FaultyFiles::Step;

/// Two directories, "log" and "a:"; "log" is the current one.
class FaultTest : public TemporaryWorld {
protected:
    FaultTest() {
        std::filesystem::create_directory(root_ / "log");
        std::filesystem::create_directory(root_ / "floppy");
        Put("log/a.txt", "a\r\n");
        Put("log/b.txt", "b\r\n");
    }

    std::filesystem::path InWorld(std::string path) const {
        std::replace(path.begin(), path.end(), '\\', '/');
        if (path.starts_with("a:")) return root_ / "floppy" / path.substr(std::min<std::size_t>(3, path.size()));
        return path.find('/') == std::string::npos ? root_ / "log" / path : root_ / path;
    }
    int OpenFails(std::string_view path, FileMode mode = FileMode::Input) {
        const int number = NumberOf([&] { files_.Open(1, path, mode); });
        files_.Close(1);
        return number;
    }
    int CopyFails(std::string_view from, std::string_view to) {
        return NumberOf([&] { files_.Copy(from, to); });
    }

    DiskFiles disk_{[this](std::string_view path) { return InWorld(std::string(path)); }, '\\', "log"};
    FaultyFiles files_{disk_};
};

TEST_F(FaultTest, WithoutAFaultEverythingGoesThrough) {
    WriteFile(files_, "log\\a.txt", FileMode::Append, "c");
    EXPECT_EQ(Content("log/a.txt"), "a\r\nc\r\n");
    files_.Copy("log\\a.txt", "a:\\a.txt");
    files_.Rename("a:\\a.txt", "a:\\c.txt");
    files_.Delete("log\\a.txt");
    EXPECT_THAT(Names("log"), ElementsAre("b.txt"));
    EXPECT_THAT(Names("floppy"), ElementsAre("c.txt"));
    EXPECT_THAT(ReadLines(files_, "a:\\c.txt"), ElementsAre("a", "c"));
    EXPECT_EQ(files_.Separator(), '\\');
    EXPECT_EQ(files_.CurrentDirectory(), "log");
}

TEST_F(FaultTest, AFaultStopsEveryOpeningAndCopying) {
    files_.Fail("log/a.txt", 70);
    EXPECT_EQ(OpenFails("log\\a.txt", FileMode::Input), 70);
    EXPECT_EQ(OpenFails("log\\a.txt", FileMode::Output), 70);
    EXPECT_EQ(OpenFails("log\\a.txt", FileMode::Append), 70);
    EXPECT_EQ(CopyFails("log\\a.txt", "a:\\a.txt"), 70);
    EXPECT_EQ(CopyFails("log\\b.txt", "log\\a.txt"), 70);
    EXPECT_EQ(OpenFails("log\\b.txt"), 0);
    EXPECT_EQ(Content("log/a.txt"), "a\r\n");
    EXPECT_THAT(Names("floppy"), ElementsAre());
}

TEST_F(FaultTest, AFaultLeavesTheOtherSteps) {
    files_.Fail("log/a.txt", 70);
    files_.Rename("log\\a.txt", "log\\c.txt");
    files_.Rename("log\\c.txt", "log\\a.txt");
    files_.Delete("log\\a.txt");
    EXPECT_THAT(Names("log"), ElementsAre("b.txt"));
}

TEST_F(FaultTest, NumberZeroEndsIt) {
    files_.Fail("log/a.txt", 70);
    files_.Fail("log/a.txt", 61, Step::Write);
    files_.Fail("LOG\\A.TXT", 0);
    EXPECT_EQ(OpenFails("log\\a.txt"), 0);
    WriteFile(files_, "log\\a.txt", FileMode::Append, "c");
    EXPECT_EQ(Content("log/a.txt"), "a\r\nc\r\n");
}

TEST_F(FaultTest, NumberZeroWithAStepEndsThatStep) {
    files_.Fail("log/a.txt", 70);
    files_.Fail("log/a.txt", 71, Step::Delete);
    files_.Fail("log/a.txt", 0, Step::Delete);
    EXPECT_EQ(OpenFails("log\\a.txt"), 70);
    files_.Delete("log\\a.txt");
}

TEST_F(FaultTest, TheLastFaultToldCounts) {
    files_.Fail("log", 70);
    files_.Fail("log/a.txt", 71);
    EXPECT_EQ(OpenFails("log\\a.txt"), 71);
    EXPECT_EQ(OpenFails("log\\b.txt"), 70);
    files_.Fail("log", 76);
    EXPECT_EQ(OpenFails("log\\a.txt"), 76);
}

TEST_F(FaultTest, ADirectoryStandsForAllFilesBelowIt) {
    files_.Fail("LOG\\", 76);
    EXPECT_EQ(OpenFails("log/a.txt"), 76);
    EXPECT_EQ(OpenFails("Log\\B.TXT"), 76);
    EXPECT_EQ(OpenFails("log2\\b.txt", FileMode::Output), 76);  // That directory is really missing.
    files_.Fail("log", 0);
    EXPECT_EQ(OpenFails("log/a.txt"), 0);
    files_.Fail("a:", 71);
    EXPECT_EQ(OpenFails("A:\\new.txt", FileMode::Output), 71);
    EXPECT_EQ(OpenFails("log\\a.txt"), 0);
    EXPECT_THAT(Names("floppy"), ElementsAre());
}

TEST_F(FaultTest, ALongerNameIsNotBelow) {
    files_.Fail("log/a", 70);
    EXPECT_EQ(OpenFails("log\\a.txt"), 0);
}

TEST_F(FaultTest, ABareNameIsThatOfTheCurrentDirectory) {
    files_.Fail("log/a.txt", 70);
    EXPECT_EQ(OpenFails("A.txt"), 70);
    EXPECT_EQ(OpenFails("b.txt"), 0);
    files_.Fail("log/a.txt", 0);
    files_.Fail("b.txt", 71);
    EXPECT_EQ(OpenFails("b.txt"), 71);
    EXPECT_EQ(OpenFails("log\\b.txt"), 71);
    EXPECT_EQ(OpenFails("a:\\b.txt", FileMode::Output), 0);
}

TEST_F(FaultTest, DanishLettersHaveNoCase) {
    files_.Fail("log/Ærø.txt"_t, 70);
    EXPECT_EQ(OpenFails("log\\æRØ.txt"_t, FileMode::Output), 70);
}

TEST_F(FaultTest, AFailingOpenLeavesTheNumberFree) {
    files_.Fail("log/a.txt", 53, Step::Open);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, "log\\a.txt", FileMode::Output); }), 53);
    EXPECT_THAT(ReadLines(files_, "log\\b.txt"), ElementsAre("b"));
    EXPECT_EQ(Content("log/a.txt"), "a\r\n");
    EXPECT_EQ(CopyFails("log\\a.txt", "a:\\a.txt"), 0);
}

TEST_F(FaultTest, AFailingWriteLeavesTheFileAsItWas) {
    files_.Fail("log/a.txt", 61, Step::Write);
    files_.Open(1, "log\\a.txt", FileMode::Append);
    EXPECT_EQ(NumberOf([&] { files_.PrintLine(1, "c"); }), 61);
    EXPECT_EQ(NumberOf([&] { files_.Print(1, "c"); }), 61);
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 0);
    EXPECT_EQ(Content("log/a.txt"), "a\r\n");
    EXPECT_THAT(ReadLines(files_, "log\\a.txt"), ElementsAre("a"));
}

TEST_F(FaultTest, AFailingCloseWritesNothingAndFreesTheNumber) {
    files_.Fail("log/a.txt", 61, Step::Close);
    files_.Open(1, "log\\a.txt", FileMode::Append);
    files_.PrintLine(1, "c");
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 61);
    EXPECT_EQ(Content("log/a.txt"), "a\r\n");
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 0);
    EXPECT_THAT(ReadLines(files_, "log\\b.txt"), ElementsAre("b"));
    WriteFile(files_, "log\\b.txt", FileMode::Append, "c");
    EXPECT_EQ(Content("log/b.txt"), "b\r\nc\r\n");
}

TEST_F(FaultTest, AFailingDeleteDeletesNothing) {
    files_.Fail("log/a.txt", 70, Step::Delete);
    EXPECT_EQ(NumberOf([&] { files_.Delete("log\\a.txt"); }), 70);
    EXPECT_EQ(OpenFails("log\\a.txt"), 0);
    files_.Delete("log\\b.txt");
    EXPECT_THAT(Names("log"), ElementsAre("a.txt"));
}

TEST_F(FaultTest, AFailingRenameCountsForBothItsPaths) {
    files_.Fail("log/a.txt", 75, Step::Rename);
    EXPECT_EQ(NumberOf([&] { files_.Rename("log\\a.txt", "log\\c.txt"); }), 75);
    files_.Delete("log\\a.txt");
    EXPECT_EQ(NumberOf([&] { files_.Rename("log\\b.txt", "log\\a.txt"); }), 75);
    EXPECT_THAT(Names("log"), ElementsAre("b.txt"));
}

TEST_F(FaultTest, AFailingCopyCountsForBothItsPathsAndCopiesNothing) {
    files_.Fail("a:", 61, Step::Copy);
    EXPECT_EQ(CopyFails("log\\a.txt", "a:\\a.txt"), 61);
    WriteFile(files_, "a:\\c.txt", FileMode::Output, "c");
    EXPECT_EQ(CopyFails("a:\\c.txt", "log\\c.txt"), 61);
    EXPECT_THAT(Names("floppy"), ElementsAre("c.txt"));
    EXPECT_THAT(Names("log"), ElementsAre("a.txt", "b.txt"));
}

TEST_F(FaultTest, ACopyWithoutItsSourceFailsWith53WhateverItsTarget) {
    files_.Fail("a:", 71);
    EXPECT_EQ(CopyFails("log\\none.txt", "a:\\none.txt"), 53);
    EXPECT_EQ(CopyFails("gone\\none.txt", "a:\\none.txt"), 53);
    EXPECT_EQ(CopyFails("log\\a.txt", "a:\\a.txt"), 71);
    files_.Fail("log", 70);
    EXPECT_EQ(CopyFails("log\\none.txt", "a:\\none.txt"), 53);
    // A file number in use does not matter.
    files_.Fail("log", 0);
    files_.Open(1, "log\\a.txt", FileMode::Input);
    EXPECT_EQ(CopyFails("log\\none.txt", "a:\\none.txt"), 53);
}

TEST_F(FaultTest, FailuresOfTheFilesThemselvesComeThrough) {
    EXPECT_EQ(OpenFails("log\\none.txt"), 53);
    EXPECT_EQ(NumberOf([&] { files_.Print(1, "x"); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Open(3, "log\\a.txt", FileMode::Input); }), 52);
    files_.Open(1, "log\\a.txt", FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files_.PrintLine(1, "x"); }), 54);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, "log\\b.txt", FileMode::Input); }), 55);
    EXPECT_EQ(files_.LineInput(1), "a");
    EXPECT_TRUE(files_.EndOfFile(1));
}

TEST_F(FaultTest, AfterAPowerFailureOnlyWhatWasClosedIsThere) {
    WriteFile(files_, "log\\a.txt", FileMode::Append, "kept");
    files_.Open(1, "log\\a.txt", FileMode::Append);
    files_.PrintLine(1, "lost");
    files_.Open(2, "log\\b.txt", FileMode::Input);
    files_.Abandon();
    EXPECT_EQ(Content("log/a.txt"), "a\r\nkept\r\n");
    EXPECT_THAT(ReadLines(files_, "log\\b.txt"), ElementsAre("b"));
}

}  // namespace
}  // namespace vatro
