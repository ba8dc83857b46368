// SPDX-License-Identifier: MIT
//
// The second copy when the process is killed, the power is cut or the disk fails at each of its calls.
#include "second_copy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <set>

#include "extras/log_lines.h"
#include "log_text.h"
#include "power/disk_model.h"
#include "power/disk_record.h"
#include "temporary_directory.h"
#include "whole_file.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "FD80mSSB.txt";
/// With this many contacts of 81 bytes, the next one does not fit into the first block of 4096 bytes.
constexpr int kCopiedContacts = 50;
const std::string kMarker = "text\r\nid\r\n";

/// The contents of the log after each step: two contacts, the second one across the end of a block, and a correction.
std::vector<std::string> Story() {
    std::vector<std::string> story{LogOf(kCopiedContacts - 1), LogOf(kCopiedContacts), LogOf(kCopiedContacts + 1)};
    std::string corrected = story.back();
    const std::string line = ContactLine(7, 7);
    corrected.replace(corrected.find(line), line.size(), ContactLine(7, 7, "DL7CC"));
    story.push_back(corrected);
    return story;
}

DiskState Before(const fs::path& logs) {
    return {{std::string("stick/") + kName, Story().front()}, {"stick/vatro.kopi", kMarker + logs.string() + "\r\n"}};
}

class SecondCopyOnADisk : public testing::Test {
protected:
    void SetUp() override {
        if (!CanRecord()) GTEST_SKIP() << "no process may be looked at here";
    }

    /// The logs are on another disk, which does not fail.
    fs::path Logs() const { return computer_.Path() / "log"; }
    fs::path Stick(const TemporaryDirectory& directory) const { return directory.Path() / "stick"; }
    SecondCopy Copy(const TemporaryDirectory& directory) const {
        SecondCopy::Surroundings surroundings;
        surroundings.now = [] { return DateTime{2026, 9, 5, 14, 5, 30, 0}; };
        surroundings.state = computer_.Path() / "state";
        return {CopyPlaces{Logs(), Stick(directory), {}, "id"}, std::move(surroundings)};
    }
    /// Writes the log as the program does, which puts the old one into the history before a correction.
    void WriteLog(std::size_t step) const {
        fs::create_directories(Logs());
        const std::vector<std::string> story = Story();
        if (step == story.size() - 1)
            History(Logs(), HistoryElsewhere(computer_.Path() / "state", Logs()), [] {
                return DateTime{2026, 9, 5, 14, 5, 30, 0};
            }).AddContent(kName, story[step - 1], History::Keep::ByAge);
        WriteWhole(Logs() / kName, story[step]);
    }
    /// Takes every step and calls `after` when the copy is said to be up to date; returns whether it is after the last one.
    bool Live(
        const TemporaryDirectory& directory, const std::function<void()>& after = [] {}) const {
        SecondCopy copy = Copy(directory);
        bool done = false;
        for (std::size_t step = 0; step < Story().size(); ++step) {
            WriteLog(step);
            done = copy.Update({kName}).done;
            if (done) after();
        }
        return done;
    }

    TemporaryDirectory computer_;
};

TEST_F(SecondCopyOnADisk, IsAWholeStateBeforeAndAfterEachCall) {
    const TemporaryDirectory directory;
    WriteDisk(directory.Path(), Before(Logs()));
    const std::vector<DiskCall> calls = RecordCalls(directory.Path(), [&](const Teller&) {
        if (!Live(directory)) throw std::runtime_error("not up to date");
    });
    const std::vector<std::string> story = Story();
    std::set<std::string> seen;
    DiskModel disk(Before(Logs()));
    for (const DiskCall& call : calls) {
        disk.Do(call);
        const DiskState shown = disk.Shown();
        ASSERT_TRUE(shown.contains(std::string("stick/") + kName));
        const std::string& copy = shown.at(std::string("stick/") + kName);
        ASSERT_TRUE(std::find(story.begin(), story.end(), copy) != story.end()) << copy.substr(copy.size() - 100);
        seen.insert(copy);
    }
    EXPECT_EQ(seen.size(), story.size() - 1) << "every later state has been there";
}

TEST_F(SecondCopyOnADisk, LosesNoLineWhenTheStickIsPulledDuringACall) {
    const TemporaryDirectory directory;
    WriteDisk(directory.Path(), Before(Logs()));
    const std::vector<DiskCall> calls =
        RecordCalls(directory.Path(), [&](const Teller& teller) { Live(directory, [&] { teller.Tell(); }); });
    const std::vector<std::string> story = Story();
    DiskModel disk(Before(Logs()));
    std::size_t states = 0;
    std::size_t told = 0;
    for (const DiskCall& call : calls) {
        if (call.kind == DiskCall::Kind::Told) {
            ++told;
            for (const DiskState& state : disk.AfterPowerCut())
                ASSERT_EQ(state.at(std::string("stick/") + kName), story.at(told - 1)) << "a copy that is said to be up to date";
            continue;
        }
        disk.Do(call);
        for (const DiskState& state : disk.AfterPowerCut()) {
            ++states;
            const auto found = state.find(std::string("stick/") + kName);
            ASSERT_NE(found, state.end());
            // What an append has left of its line is damaged, as it would be in the log itself.
            const LogText text = ReadLogText(found->second);
            const bool whole = std::any_of(story.begin(), story.end(), [&](const std::string& content) {
                return content == std::string_view(found->second).substr(0, text.damagedFrom);
            });
            ASSERT_TRUE(whole) << found->second.substr(text.damagedFrom);
        }
    }
    EXPECT_GT(states, calls.size());
    EXPECT_EQ(told, story.size());
}

TEST_F(SecondCopyOnADisk, IsAWholeStateAfterAFaultOfAnyCallAndRecovers) {
#ifndef __x86_64__
    GTEST_SKIP() << "calls can be made to fail on this kind of processor only";
#endif
    const std::vector<std::string> story = Story();
    std::size_t runs = 0;
    for (const int error : {EIO, ENOSPC, 0}) {
        for (std::size_t call = 0;; ++call) {
            const TemporaryDirectory directory;
            fs::remove_all(computer_.Path() / "state");
            WriteDisk(directory.Path(), Before(Logs()));
            const std::string spoiled = RunWithFault(directory.Path(), {call, error}, [&] { Live(directory); });
            if (spoiled.empty()) break;
            ++runs;
            const std::string where = spoiled + ", error " + std::to_string(error);
            const std::string copy = ReadWhole(Stick(directory) / kName);
            ASSERT_TRUE(std::find(story.begin(), story.end(), copy) != story.end()) << where;
            const CopyOutcome outcome = Copy(directory).Update({});
            ASSERT_TRUE(outcome.done) << where;
            ASSERT_EQ(ReadWhole(Stick(directory) / kName), story.back()) << where;
            ASSERT_EQ(outcome.found, 0U) << where;
            ASSERT_FALSE(fs::exists(Stick(directory) / "tidligere")) << where;
        }
    }
    EXPECT_GT(runs, 30U);
}

}  // namespace
}  // namespace vatro
