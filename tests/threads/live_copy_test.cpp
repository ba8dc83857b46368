// SPDX-License-Identifier: MIT
//
// The thread of the second copy. Under the thread sanitizer (preset tsan) the tests also detect data races.
#include "live_copy.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <thread>

#include "temporary_directory.h"
#include "threads/thread_loop.h"

namespace vatro {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr DateTime kNow{2026, 9, 5, 12, 7, 0, 0};

CopyOutcome Done(std::size_t found = 0) {
    CopyOutcome outcome;
    outcome.done = true;
    outcome.found = found;
    return outcome;
}

CopyOutcome NotDone(std::string reason) {
    CopyOutcome outcome;
    outcome.reason = std::move(reason);
    return outcome;
}

/// Stands for a disk that answers when the test lets it.
struct Disk {
    std::mutex mutex;
    std::condition_variable gate;
    bool hangs = false;
    CopyOutcome answer = Done();
    std::set<std::string> copied;
    int adopted = 0;
    int updates = 0;

    void Hang(bool on) {
        {
            const std::scoped_lock lock(mutex);
            hangs = on;
        }
        gate.notify_all();
    }
    void Answer(CopyOutcome outcome) {
        const std::scoped_lock lock(mutex);
        answer = std::move(outcome);
    }
    int Updates() {
        const std::scoped_lock lock(mutex);
        return updates;
    }
    bool Copied(const std::string& log) {
        const std::scoped_lock lock(mutex);
        return copied.contains(log);
    }
};

class DiskWork : public CopyWork {
public:
    explicit DiskWork(std::shared_ptr<Disk> disk) : disk_(std::move(disk)) {}
    CopyOutcome Adopt() override {
        std::unique_lock lock(disk_->mutex);
        ++disk_->adopted;
        return disk_->answer;
    }
    CopyOutcome Update(const std::set<std::string>& changed) override {
        std::unique_lock lock(disk_->mutex);
        disk_->gate.wait(lock, [this] { return !disk_->hangs; });
        disk_->copied.insert(changed.begin(), changed.end());
        ++disk_->updates;
        return disk_->answer;
    }

private:
    std::shared_ptr<Disk> disk_;
};

template <class Condition>
bool Eventually(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < end) {
        if (condition()) return true;
        std::this_thread::sleep_for(milliseconds(1));
    }
    return false;
}

LiveCopy::Options Quick() {
    LiveCopy::Options options;
    options.universal = [] { return kNow; };
    options.every = milliseconds(5);
    options.everyAtRest = milliseconds(5);
    return options;
}

void Write(LiveCopy& copy, const std::string& log) {
    copy.WriteBegins();
    copy.WriteEnded(log);
}

std::string Content(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

TEST(LiveCopies, DoNothingUntilADirectoryIsChosen) {
    LiveCopy copy(Quick());
    Write(copy, "FD80mSSB.txt");
    EXPECT_FALSE(copy.Status().on);
    EXPECT_TRUE(copy.End(kPatience));
}

TEST(LiveCopies, BringOverEveryChange) {
    const auto disk = std::make_shared<Disk>();
    LiveCopy copy(Quick());
    copy.Follow(std::make_unique<DiskWork>(disk), true);
    ASSERT_TRUE(Eventually([&] { return copy.Status().current; }));
    Write(copy, "FD80mSSB.txt");
    EXPECT_TRUE(Eventually([&] { return disk->Copied("FD80mSSB.txt") && copy.Status().current; }));
    EXPECT_EQ(copy.Status().good, kNow);
    EXPECT_EQ(disk->adopted, 1);
    EXPECT_TRUE(copy.End(kPatience));
}

TEST(LiveCopies, BringOverTheLastChangeAtTheEnd) {
    const auto disk = std::make_shared<Disk>();
    LiveCopy::Options options = Quick();
    options.every = std::chrono::hours(1);
    LiveCopy copy(std::move(options));
    copy.Follow(std::make_unique<DiskWork>(disk), false);
    Write(copy, "FD20mCW.txt");
    EXPECT_TRUE(copy.End(kPatience));
    EXPECT_TRUE(disk->Copied("FD20mCW.txt"));
    EXPECT_TRUE(copy.Status().current);
}

TEST(LiveCopies, NeverKeepTheProgramWaiting) {
    const auto disk = std::make_shared<Disk>();
    disk->hangs = true;
    LiveCopy copy(Quick());
    copy.Follow(std::make_unique<DiskWork>(disk), false);
    EXPECT_TRUE(Eventually([&] { return copy.Status().busy > milliseconds(50); }));
    for (int i = 0; i < 100; ++i) Write(copy, "FD80mSSB.txt");
    EXPECT_FALSE(copy.Status().current);
    EXPECT_FALSE(copy.End(milliseconds(10)));
    // The thread must find what it uses when the disk answers at last.
    disk->Hang(false);
}

TEST(LiveCopies, GoOnInAnotherDirectoryWhileOneHangs) {
    const auto hanging = std::make_shared<Disk>();
    hanging->hangs = true;
    const auto sound = std::make_shared<Disk>();
    LiveCopy::Options options = Quick();
    options.patience = milliseconds(20);
    LiveCopy copy(std::move(options));
    copy.Follow(std::make_unique<DiskWork>(hanging), false);
    ASSERT_TRUE(Eventually([&] { return copy.Status().busy > milliseconds(20); }));
    copy.Follow(std::make_unique<DiskWork>(sound), true);
    EXPECT_TRUE(Eventually([&] { return copy.Status().current; }));
    Write(copy, "FD80mSSB.txt");
    EXPECT_TRUE(Eventually([&] { return sound->Copied("FD80mSSB.txt"); }));
    EXPECT_FALSE(copy.End(kPatience)) << "the first thread still waits";
    hanging->Hang(false);
}

TEST(LiveCopies, AreNotCurrentWhileAChangeIsOnItsWay) {
    const auto disk = std::make_shared<Disk>();
    LiveCopy copy(Quick());
    copy.Follow(std::make_unique<DiskWork>(disk), false);
    ASSERT_TRUE(Eventually([&] { return copy.Status().current; }));
    disk->Hang(true);
    Write(copy, "FD80mSSB.txt");
    EXPECT_FALSE(copy.Status().current);
    ASSERT_TRUE(Eventually([&] { return copy.Status().busy > milliseconds(20); }));
    EXPECT_FALSE(copy.Status().current);
    disk->Hang(false);
    EXPECT_TRUE(Eventually([&] { return copy.Status().current; }));
    EXPECT_TRUE(copy.End(kPatience));
}

TEST(LiveCopies, TellWhyThereIsNoneAndWhenItIsBack) {
    const auto disk = std::make_shared<Disk>();
    std::atomic<int> told = 0;
    LiveCopy::Options options = Quick();
    options.changed = [&told] { ++told; };
    LiveCopy copy(std::move(options));
    copy.Follow(std::make_unique<DiskWork>(disk), false);
    ASSERT_TRUE(Eventually([&] { return copy.Status().current; }));
    disk->Answer(NotDone("gone"));
    ASSERT_TRUE(Eventually([&] { return copy.Status().reason == "gone"; }));
    EXPECT_FALSE(copy.Status().current);
    EXPECT_EQ(copy.Status().good, kNow);
    disk->Answer(Done(3));
    ASSERT_TRUE(Eventually([&] { return copy.Status().current; }));
    EXPECT_GE(copy.TakeFound(), 3U);
    EXPECT_GE(told, 3);
    EXPECT_TRUE(copy.End(kPatience));
}

TEST(LiveCopies, LookForTheDirectoryOftenOnlyWhileItIsMissing) {
    const auto disk = std::make_shared<Disk>();
    disk->answer = NotDone("gone");
    LiveCopy::Options options = Quick();
    options.everyAtRest = std::chrono::hours(1);
    LiveCopy copy(std::move(options));
    copy.Follow(std::make_unique<DiskWork>(disk), false);
    ASSERT_TRUE(Eventually([&] { return disk->Updates() > 3; }));
    disk->Answer(Done());
    ASSERT_TRUE(Eventually([&] { return copy.Status().current; }));
    const int updates = disk->Updates();
    std::this_thread::sleep_for(milliseconds(50));
    EXPECT_EQ(disk->Updates(), updates);
    Write(copy, "FD80mSSB.txt");
    EXPECT_TRUE(Eventually([&] { return disk->Copied("FD80mSSB.txt") && copy.Status().current; }));
    EXPECT_TRUE(copy.End(kPatience));
}

TEST(LiveCopies, CanBeTurnedOffAndOnAgain) {
    const auto first = std::make_shared<Disk>();
    const auto second = std::make_shared<Disk>();
    LiveCopy copy(Quick());
    copy.Follow(std::make_unique<DiskWork>(first), false);
    copy.Follow(nullptr, false);
    EXPECT_FALSE(copy.Status().on);
    Write(copy, "FD80mSSB.txt");
    copy.Follow(std::make_unique<DiskWork>(second), false);
    Write(copy, "FD40mSSB.txt");
    EXPECT_TRUE(Eventually([&] { return second->Copied("FD40mSSB.txt"); }));
    EXPECT_FALSE(second->Copied("FD80mSSB.txt"));
    EXPECT_TRUE(copy.End(kPatience));
}

/// The program's thread writes a log as fast as it can, and in two steps, while the copy follows.
TEST(LiveCopies, HoldOnlyWholeStatesOfALogThatIsBeingWritten) {
    const TemporaryDirectory directory;
    const fs::path logs = directory.Path() / "log";
    const fs::path copies = directory.Path() / "kopi";
    fs::create_directory(logs);
    fs::create_directory(copies);
    const std::string line = "12:07 DL1AA           59 -0001 59 -0003  3            OZ1DEF     SSB   05-09-26\r\n";
    LiveCopy copy(Quick());
    SecondCopy::Surroundings surroundings;
    surroundings.now = [] { return kNow; };
    surroundings.writes = copy.Writes();
    surroundings.state = directory.Path() / "state";
    copy.Follow(std::make_unique<SecondCopy>(CopyPlaces{logs, copies, {}, "id"}, std::move(surroundings)), true);
    std::ofstream log(logs / "FD80mSSB.txt", std::ios::binary);
    for (int i = 0; i < 500; ++i) {
        copy.WriteBegins();
        log << line.substr(0, 40) << std::flush;
        std::this_thread::yield();
        log << line.substr(40) << std::flush;
        copy.WriteEnded("FD80mSSB.txt");
        ASSERT_EQ(Content(copies / "FD80mSSB.txt").size() % line.size(), 0U);
    }
    log.close();
    EXPECT_TRUE(copy.End(kPatience));
    EXPECT_EQ(Content(copies / "FD80mSSB.txt"), Content(logs / "FD80mSSB.txt"));
}

}  // namespace vatro
