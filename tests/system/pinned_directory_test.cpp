// SPDX-License-Identifier: MIT
#include "pinned_directory.h"

#include "disk/temporary_world.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

class PinnedDirectoryTest : public TemporaryWorld {};

TEST_F(PinnedDirectoryTest, LeadsToTheFilesOfTheDirectory) {
    fs::create_directory(root_ / "a");
    Put("a/file", "content");
    PinnedDirectory held;
    ASSERT_EQ(held.Hold(root_ / "a"), 0);
    EXPECT_EQ(fs::file_size(held.Path() / "file"), 7U);
}

TEST_F(PinnedDirectoryTest, CannotHoldWhatIsMissingOrNoDirectory) {
    Put("file", "content");
    PinnedDirectory held;
    EXPECT_NE(held.Hold(root_ / "missing"), 0);
    EXPECT_NE(held.Hold(root_ / "file"), 0);
}

#ifndef _WIN32
TEST_F(PinnedDirectoryTest, StaysTheSameWhenAnotherTakesItsName) {
    fs::create_directory(root_ / "a");
    PinnedDirectory held;
    ASSERT_EQ(held.Hold(root_ / "a"), 0);
    fs::rename(root_ / "a", root_ / "b");
    fs::create_directory(root_ / "a");
    std::ofstream(held.Path() / "file") << "content";
    EXPECT_TRUE(fs::exists(root_ / "b/file"));
    EXPECT_FALSE(fs::exists(root_ / "a/file"));
}
#endif

}  // namespace
}  // namespace vatro
