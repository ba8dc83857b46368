// SPDX-License-Identifier: MIT
#include "system_file.h"

#include <gmock/gmock.h>

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

class SystemFileTest : public TemporaryWorld {};

TEST_F(SystemFileTest, EveryAppendGoesToTheEndThatTheFileHasThen) {
    Put("a.txt", "one ");
    SystemFile first;
    SystemFile second;
    ASSERT_EQ(first.Open(root_ / "a.txt", SystemFile::Access::Append, false), 0);
    ASSERT_EQ(second.Open(root_ / "a.txt", SystemFile::Access::Append, false), 0);
    first.Write("two ");
    second.Write("three ");
    first.Write("four");
    EXPECT_EQ(Content("a.txt"), "one two three four");
}

TEST_F(SystemFileTest, AnAppendIsCutBackAndGoesOnFromThere) {
    Put("a.txt", "one ");
    SystemFile file;
    ASSERT_EQ(file.Open(root_ / "a.txt", SystemFile::Access::Append, false), 0);
    const std::int64_t before = file.Length();
    EXPECT_EQ(before, 4);
    file.Write("two");
    file.Sync();
    file.Truncate(before);
    EXPECT_EQ(Content("a.txt"), "one ");
    file.Write("three");
    EXPECT_EQ(Content("a.txt"), "one three");
}

TEST_F(SystemFileTest, WhatIsWrittenFromTheStartKeepsWhatIsBehindIt) {
    Put("a.txt", "abcdef");
    SystemFile file;
    ASSERT_EQ(file.Open(root_ / "a.txt", SystemFile::Access::Write, true), 0);
    file.Write("xy");
    EXPECT_EQ(Content("a.txt"), "xycdef");
    file.Truncate(3);
    EXPECT_EQ(Content("a.txt"), "xyc");
}

TEST_F(SystemFileTest, OnlyAMissingFileIsToldAsMissing) {
    SystemFile file;
    EXPECT_TRUE(IsMissing(file.Open(root_ / "a.txt", SystemFile::Access::Read, false)));
    EXPECT_TRUE(IsMissing(file.Open(root_ / "gone" / "a.txt", SystemFile::Access::Write, true)));
    EXPECT_TRUE(IsMissing(RemoveFile(root_ / "a.txt")));
    EXPECT_FALSE(IsMissing(RemoveFile(root_)));
    EXPECT_FALSE(IsMissing(file.Open(root_, SystemFile::Access::Write, false)));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(IsMissing(0));
    EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(SystemFileTest, TwoNamesOfOneFileAreTheSame) {
    Put("a.txt", "");
    Put("b.txt", "");
    SystemFile a;
    SystemFile again;
    SystemFile b;
    ASSERT_EQ(a.Open(root_ / "a.txt", SystemFile::Access::Append, false), 0);
    ASSERT_EQ(again.Open(root_ / "." / "a.txt", SystemFile::Access::Read, false), 0);
    ASSERT_EQ(b.Open(root_ / "b.txt", SystemFile::Access::Read, false), 0);
    EXPECT_TRUE(a.IsSameFile(again));
    EXPECT_FALSE(a.IsSameFile(b));
    b.Close();
    EXPECT_FALSE(b.IsSameFile(b)) << "nothing is open";
}

TEST_F(SystemFileTest, ARenamedFileHasGoneFromItsOldName) {
    Put("a.txt", "a");
    EXPECT_EQ(RenameFile(root_ / "a.txt", root_ / "b.txt"), 0);
    EXPECT_THAT(Names(), ElementsAre("b.txt"));
    EXPECT_TRUE(IsMissing(RenameFile(root_ / "a.txt", root_ / "c.txt")));
}

}  // namespace
}  // namespace vatro
