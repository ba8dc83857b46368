// SPDX-License-Identifier: MIT
#include "directory_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include "temporary_directory.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Result = DirectoryLock::Result;

class DirectoryLockTest : public testing::Test {
protected:
    /// Behaves like a file system without locks.
    static DirectoryLock::Options Pulse() {
        DirectoryLock::Options options;
        options.lock = [](LockFile&, const fs::path&) { return LockResult::NotSupported; };
        return options;
    }
    const TemporaryDirectory directory_;
    const fs::path& root_ = directory_.Path();
};

TEST_F(DirectoryLockTest, OneHasItAtATime) {
    DirectoryLock mine;
    DirectoryLock other;
    EXPECT_EQ(mine.Acquire(root_), Result::Won);
    EXPECT_EQ(other.Acquire(root_), Result::Taken);
    mine.Release();
    EXPECT_EQ(other.Acquire(root_), Result::Won);
}

TEST_F(DirectoryLockTest, WhatIsInTheFileSaysNothing) {
    { std::ofstream(root_ / "vatro.lock") << "somebody else, since yesterday"; }
    EXPECT_EQ(DirectoryLock().Acquire(root_), Result::Won);
}

TEST_F(DirectoryLockTest, ADirectoryThatIsNotThereIsNoHindrance) {
    EXPECT_EQ(DirectoryLock().Acquire(root_ / "gone"), Result::Unavailable);
}

TEST_F(DirectoryLockTest, ADirectoryInPlaceOfTheFileIsNoHindrance) {
    fs::create_directory(root_ / "vatro.lock");
    EXPECT_EQ(DirectoryLock().Acquire(root_), Result::Unavailable);
}

TEST_F(DirectoryLockTest, WithoutLocksAPulseKeepsOthersAway) {
    DirectoryLock mine(Pulse());
    DirectoryLock other(Pulse());
    EXPECT_EQ(mine.Acquire(root_), Result::Won);
    EXPECT_EQ(other.Acquire(root_), Result::Taken);
    mine.Release();
    EXPECT_FALSE(fs::exists(root_ / "vatro.puls"));
    EXPECT_EQ(other.Acquire(root_), Result::Won);
}

TEST_F(DirectoryLockTest, ASilentPulseIsAsked) {
    { std::ofstream(root_ / "vatro.puls") << "a machine that lost its power"; }
    DirectoryLock mine(Pulse());
    EXPECT_EQ(mine.Acquire(root_), Result::Taken) << "it may beat again";
    fs::last_write_time(root_ / "vatro.puls", fs::last_write_time(root_ / "vatro.puls") - 61s);
    EXPECT_EQ(mine.Acquire(root_), Result::Silent);
    EXPECT_EQ(mine.Acquire(root_, true), Result::Won);
    EXPECT_EQ(DirectoryLock(Pulse()).Acquire(root_), Result::Taken);
}

TEST_F(DirectoryLockTest, ThePulseBeats) {
    DirectoryLock::Options fast = Pulse();
    fast.beat = 5ms;
    DirectoryLock mine(fast);
    ASSERT_EQ(mine.Acquire(root_), Result::Won);
    const auto old = fs::last_write_time(root_ / "vatro.puls") - 100s;
    fs::last_write_time(root_ / "vatro.puls", old);
    for (int i = 0; i < 400 && fs::last_write_time(root_ / "vatro.puls") == old; ++i) std::this_thread::sleep_for(5ms);
    EXPECT_GT(fs::last_write_time(root_ / "vatro.puls"), old);
    EXPECT_FALSE(mine.Lost());
}

TEST_F(DirectoryLockTest, SeesThatAnotherOneHasTakenItOver) {
    DirectoryLock::Options fast = Pulse();
    fast.beat = 5ms;
    DirectoryLock mine(fast);
    ASSERT_EQ(mine.Acquire(root_), Result::Won);
    { std::ofstream(root_ / "another") << "another machine"; }
    fs::rename(root_ / "another", root_ / "vatro.puls");
    for (int i = 0; i < 400 && !mine.Lost(); ++i) std::this_thread::sleep_for(5ms);
    EXPECT_TRUE(mine.Lost());
    mine.Release();
    EXPECT_TRUE(fs::exists(root_ / "vatro.puls")) << "it is the other one's now";
}

}  // namespace
}  // namespace vatro
