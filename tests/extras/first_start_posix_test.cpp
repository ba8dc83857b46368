// SPDX-License-Identifier: MIT
//
// Pipes, full disks and directories of others at the first start. Tests that need other rights are skipped.
#include <sys/mount.h>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "disk/temporary_world.h"
#include "first_start.h"
#include "without_root.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::SizeIs;

class FirstDirectoryPosix : public TemporaryWorld {
protected:
    FirstDirectoryPosix() { fs::create_directory(root_ / "tables"); }
    FirstAnswers Answers(const std::string& name) const {
        FirstAnswers answers;
        answers.call = "OZ7FD/P";
        answers.operatorCall = "OZ1AB";
        answers.directory = (root_ / name).string();
        return answers;
    }
    std::vector<Complaint> Prepare(const FirstAnswers& answers) const { return PrepareDisk(answers, root_, root_ / "tables"); }
};

TEST_F(FirstDirectoryPosix, IsRemovedAgainIfTheDiskHasNoRoomForItsMarker) {
    fs::create_directory(root_ / "stick");
    // Room for its own root and one directory.
    if (mount("tmpfs", (root_ / "stick").c_str(), "tmpfs", 0, "nr_inodes=2") != 0) GTEST_SKIP() << "no right to mount a small disk";
    const std::vector<Complaint> complaints = Prepare(Answers("stick/log"));
    const bool left = fs::exists(root_ / "stick" / "log");
    umount2((root_ / "stick").c_str(), MNT_DETACH);
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Directory);
    EXPECT_THAT(complaints[0].text, HasSubstr("Der kan ikke skrives i biblioteket: "));
    EXPECT_FALSE(left);
}

TEST_F(FirstDirectoryPosix, WhoseMarkerIsAPipeIsToldAtOnce) {
    fs::create_directory(root_ / "log");
    ASSERT_EQ(mkfifo((root_ / "log" / "setlog.txt").c_str(), 0600), 0);
    EXPECT_THAT(Prepare(Answers("log")), SizeIs(1));
}

TEST_F(FirstDirectoryPosix, MayHoldAPipeThatIsNamedLikeALog) {
    fs::create_directory(root_ / "log");
    ASSERT_EQ(mkfifo((root_ / "log" / "FD80mSSB.txt").c_str(), 0600), 0);
    EXPECT_EQ(ExamineDirectory((root_ / "log").string(), root_).kind, DirectoryFinding::Kind::Free);
}

TEST_F(FirstDirectoryPosix, APipeIsNoListOfOperators) {
    const fs::path pipe = root_ / "tables" / "operator.txt";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::vector<Complaint> complaints = Prepare(Answers("log"));
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Operator);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(FirstDirectoryPosix, ThatMayNotBeReadIsUnusable) {
    fs::create_directory(root_ / "log");
    fs::permissions(root_ / "log", fs::perms::none);
    const WithoutRoot user(root_ / "log");
    ASSERT_TRUE(user.Holds());
    const DirectoryFinding found = ExamineDirectory((root_ / "log").string(), root_);
    fs::permissions(root_ / "log", fs::perms::owner_all);
    EXPECT_EQ(found.kind, DirectoryFinding::Kind::Unusable);
    EXPECT_THAT(found.text, HasSubstr("kan ikke l"));
}

}  // namespace
}  // namespace vatro
