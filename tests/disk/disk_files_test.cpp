// SPDX-License-Identifier: MIT
#include "disk_files.h"

#include <gmock/gmock.h>

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using DiskFilesTest = DiskWorld;

TEST_F(DiskFilesTest, PrintLineWritesCrLfAndPrintTheTextAlone) {
    files_.Open(1, At("a.txt"), FileMode::Output);
    files_.Print(1, "a");
    files_.PrintLine(1, "b");
    files_.PrintLine(1, "");
    files_.PrintLine(1, "Ø"_t);
    files_.Close(1);
    EXPECT_EQ(Content("a.txt"), "ab\r\n\r\n\xD8\r\n");
}

TEST_F(DiskFilesTest, OutputReplacesAndAppendGoesOn) {
    Put("a.txt", "a longer content than the new one");
    WriteFile(files_, At("a.txt"), FileMode::Output, "one");
    WriteFile(files_, At("a.txt"), FileMode::Append, "two");
    EXPECT_EQ(Content("a.txt"), "one\r\ntwo\r\n");
    WriteFile(files_, At("new.txt"), FileMode::Append, "one");
    EXPECT_EQ(Content("new.txt"), "one\r\n");
}

TEST_F(DiskFilesTest, AnAppendBeginsALineOfItsOwn) {
    Put("a.txt", "half a li");
    WriteFile(files_, At("a.txt"), FileMode::Append, "one");
    EXPECT_EQ(Content("a.txt"), "half a li\r\none\r\n");
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        Put("a.txt", "a whole line" + end);
        WriteFile(files_, At("a.txt"), FileMode::Append, "one");
        EXPECT_EQ(Content("a.txt"), "a whole line" + end + "one\r\n");
    }
    Put("a.txt", "half a li");
    files_.Open(1, At("a.txt"), FileMode::Append);
    files_.Close(1);
    EXPECT_EQ(Content("a.txt"), "half a li") << "nothing was appended";
}

TEST_F(DiskFilesTest, AnOutputWithoutALineIsAnEmptyFile) {
    Put("a.txt", "old");
    files_.Open(1, At("a.txt"), FileMode::Output);
    files_.Close(1);
    EXPECT_EQ(Content("a.txt"), "");
}

TEST_F(DiskFilesTest, ALongOutputIsWrittenInPiecesAndAnAppendAtClose) {
    const std::string line(998, 'x');
    std::string wanted;
    for (const FileMode mode : {FileMode::Output, FileMode::Append}) {
        files_.Open(1, At("a.txt"), mode);
        for (int i = 0; i < 200; ++i) {
            files_.PrintLine(1, line);
            wanted += line + "\r\n";
        }
        const std::size_t before = Content("a.txt").size();
        if (mode == FileMode::Output)
            EXPECT_GT(before, 150'000U);
        else
            EXPECT_EQ(before, 200'000U);
        files_.Close(1);
        EXPECT_EQ(Content("a.txt"), wanted);
    }
}

TEST_F(DiskFilesTest, BothNumbersWorkSideBySide) {
    Put("a.txt", "one\r\ntwo\r\n");
    files_.Open(1, At("a.txt"), FileMode::Input);
    files_.Open(2, At("b.txt"), FileMode::Output);
    while (!files_.EndOfFile(1)) files_.PrintLine(2, files_.LineInput(1));
    files_.Close(1);
    files_.Close(2);
    EXPECT_EQ(Content("b.txt"), "one\r\ntwo\r\n");
}

TEST_F(DiskFilesTest, WhatIsLeftOpenIsWrittenAtTheEnd) {
    {
        DiskFiles files;
        files.Open(1, At("a.txt"), FileMode::Output);
        files.PrintLine(1, "a");
    }
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

TEST_F(DiskFilesTest, OnlyNumbers1And2AreFileNumbers) {
    for (const int number : {0, 3, -1}) {
        EXPECT_EQ(OpenFails(number, At("a.txt"), FileMode::Output), 52);
        EXPECT_EQ(NumberOf([&] { files_.LineInput(number); }), 52);
        EXPECT_EQ(NumberOf([&] { files_.EndOfFile(number); }), 52);
        EXPECT_EQ(NumberOf([&] { files_.Print(number, ""); }), 52);
        EXPECT_EQ(NumberOf([&] { files_.Close(number); }), 0);
    }
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DiskFilesTest, ANumberThatIsNotOpenIsABadNumber) {
    EXPECT_EQ(NumberOf([&] { files_.LineInput(1); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.EndOfFile(1); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Print(1, ""); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.PrintLine(1, ""); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Close(1); }), 0);
}

TEST_F(DiskFilesTest, ReadingAndWritingNeedTheirMode) {
    Put("a.txt", "a\r\n");
    files_.Open(1, At("a.txt"), FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files_.Print(1, "x"); }), 54);
    EXPECT_EQ(NumberOf([&] { files_.PrintLine(1, "x"); }), 54);
    files_.Open(2, At("b.txt"), FileMode::Output);
    EXPECT_EQ(NumberOf([&] { files_.LineInput(2); }), 54);
    EXPECT_TRUE(files_.EndOfFile(2));
    files_.Close(1);
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

TEST_F(DiskFilesTest, ANumberInUseIsNotGivenAgain) {
    Put("a.txt", "a\r\n");
    files_.Open(1, At("a.txt"), FileMode::Input);
    EXPECT_EQ(OpenFails(1, At("b.txt"), FileMode::Output), 55);
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
    EXPECT_EQ(files_.LineInput(1), "a");
}

TEST_F(DiskFilesTest, AFileIsOpenTwiceOnlyForReading) {
    Put("a.txt", "a\r\n");
    files_.Open(1, At("a.txt"), FileMode::Input);
    EXPECT_EQ(OpenFails(2, At("A.TXT"), FileMode::Output), 55);
    EXPECT_EQ(OpenFails(2, At("a.txt"), FileMode::Append), 55);
    EXPECT_EQ(OpenFails(2, At("a.txt"), FileMode::Input), 0);
    files_.Close(1);
    files_.Close(2);
    files_.Open(1, At("a.txt"), FileMode::Append);
    EXPECT_EQ(OpenFails(2, At("a.txt"), FileMode::Append), 55);
    EXPECT_EQ(OpenFails(2, At("a.txt"), FileMode::Input), 55);
    files_.Close(1);
    EXPECT_EQ(OpenFails(2, At("a.txt"), FileMode::Append), 0);
    files_.Close(2);
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

TEST_F(DiskFilesTest, AMissingFileIsToldFromAMissingDirectory) {
    EXPECT_EQ(OpenFails(1, At("a.txt"), FileMode::Input), 53);
    for (const FileMode mode : {FileMode::Input, FileMode::Output, FileMode::Append}) {
        EXPECT_EQ(OpenFails(1, At("gone/a.txt"), mode), 76);
        EXPECT_EQ(OpenFails(1, At("gone/deep/a.txt"), mode), 76);
    }
    EXPECT_EQ(NumberOf([&] { files_.Delete(At("a.txt")); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Delete(At("gone/a.txt")); }), 76);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DiskFilesTest, ADirectoryThatGoesAwayIsToldAtTheNextAppend) {
    std::filesystem::create_directory(root_ / "log");
    WriteFile(files_, At("log/a.txt"), FileMode::Append, "a");
    std::filesystem::remove_all(root_ / "log");
    EXPECT_EQ(OpenFails(1, At("log/a.txt"), FileMode::Append), 76);
    std::filesystem::create_directory(root_ / "log");
    EXPECT_EQ(OpenFails(1, At("log/a.txt"), FileMode::Append), 0);
}

TEST_F(DiskFilesTest, AFileIsNoDirectoryAndADirectoryNoFile) {
    Put("a.txt", "");
    std::filesystem::create_directory(root_ / "log");
    EXPECT_EQ(OpenFails(1, At("a.txt/b.txt"), FileMode::Input), 76);
    EXPECT_EQ(OpenFails(1, At("a.txt/b.txt"), FileMode::Append), 76);
    for (const FileMode mode : {FileMode::Input, FileMode::Output, FileMode::Append}) EXPECT_EQ(OpenFails(1, At("log"), mode), 75);
    EXPECT_EQ(NumberOf([&] { files_.Delete(At("log")); }), 75);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("log"), At("b.txt")); }), 75);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), At("log")); }), 75);
    EXPECT_THAT(Names(), ElementsAre("a.txt", "log"));
}

TEST_F(DiskFilesTest, APathThatIsNoneIsABadName) {
    using namespace std::string_literals;
    EXPECT_EQ(OpenFails(1, "", FileMode::Input), 52);
    EXPECT_EQ(OpenFails(1, At("a\0b"s), FileMode::Output), 52);
    EXPECT_EQ(NumberOf([&] { files_.Delete(""); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Rename("", At("b")); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Copy("", At("b")); }), 52);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DiskFilesTest, DeleteTakesTheFileHoweverItIsSpelled) {
    Put("FDkopi.txt", "");
    Put("b.txt", "");
    files_.Delete(At("fdKOPI.txt"));
    EXPECT_THAT(Names(), ElementsAre("b.txt"));
}

TEST_F(DiskFilesTest, RenameMovesTheFile) {
    std::filesystem::create_directory(root_ / "log");
    Put("FDkopi.txt", "a");
    files_.Rename(At("fdkopi.txt"), At("FD10mCW.txt"));
    EXPECT_THAT(Names(), ElementsAre("FD10mCW.txt", "log"));
    files_.Rename(At("FD10mCW.txt"), At("LOG\\b.txt"));
    EXPECT_EQ(Content("log/b.txt"), "a");
    EXPECT_THAT(Names(), ElementsAre("log"));
}

TEST_F(DiskFilesTest, RenameNeverReplacesAFile) {
    Put("a.txt", "a");
    Put("b.txt", "b");
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("a.txt"), At("b.txt")); }), 58);
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("a.txt"), At("B.TXT")); }), 58);
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("a.txt"), At("a.txt")); }), 58);
    EXPECT_EQ(Content("a.txt"), "a");
    EXPECT_EQ(Content("b.txt"), "b");
}

TEST_F(DiskFilesTest, RenameMayChangeTheSpelling) {
    Put("probe", "");
    std::filesystem::rename(root_ / "probe", root_ / "PROBE");
    if (Names() != std::vector<std::string>{"PROBE"}) GTEST_SKIP() << "the system itself keeps the old spelling, as wine does";
    std::filesystem::remove(root_ / "PROBE");
    Put("a.txt", "a");
    files_.Rename(At("a.txt"), At("A.TXT"));
    EXPECT_THAT(Names(), ElementsAre("A.TXT"));
}

TEST_F(DiskFilesTest, RenameNeedsItsSourceAndItsDirectories) {
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("b.txt"), At("gone/b.txt")); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("gone/b.txt"), At("b.txt")); }), 76);
    EXPECT_EQ(NumberOf([&] { files_.Rename(At("a.txt"), At("gone/a.txt")); }), 76);
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(DiskFilesTest, CopyReplacesItsTarget) {
    std::string content(200'000, 'x');
    content += '\0';
    Put("a.txt", content);
    Put("B.txt", std::string(300'000, 'y'));
    files_.Copy(At("A.txt"), At("b.TXT"));
    EXPECT_EQ(Content("B.txt"), content);
    EXPECT_EQ(Content("a.txt"), content);
    EXPECT_THAT(Names(), ElementsAre("B.txt", "a.txt"));
    Put("empty.txt", "");
    files_.Copy(At("empty.txt"), At("c.txt"));
    EXPECT_EQ(Content("c.txt"), "");
}

TEST_F(DiskFilesTest, CopyTellsTheMissingSourceBeforeTheMissingTarget) {
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("b.txt"), At("c.txt")); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("b.txt"), At("gone/c.txt")); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("gone/b.txt"), At("gone/c.txt")); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), At("gone/c.txt")); }), 76);
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(DiskFilesTest, CopyLeavesAFileThatIsInUseAlone) {
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), At("A.txt")); }), 70);
    Put("b.txt", "b\r\n");
    files_.Open(1, At("b.txt"), FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), At("b.txt")); }), 55);
    EXPECT_EQ(Content("a.txt"), "a");
    EXPECT_EQ(Content("b.txt"), "b\r\n");
}

}  // namespace
}  // namespace vatro
