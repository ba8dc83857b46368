// SPDX-License-Identifier: MIT
//
// The files of the desktop program when the power is cut or the disk fails at each of their calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <functional>
#include <set>
#include <sstream>

#include "codepage.h"
#include "disk_files.h"
#include "extras/log_lines.h"
#include "power/disk_model.h"
#include "power/disk_record.h"
#include "recovery.h"
#include "safe_files.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

constexpr int kContacts = 30;
const std::string kCorrected = ContactLine(7, 7, "DL7CC");
const std::string kAppended = ContactLine(kContacts + 1, kContacts + 1);

/// A desktop's files, in a directory that holds the log directory and the user's home.
class Desk {
public:
    explicit Desk(const fs::path& root) : root_(root), files_(disk_, Around()) {}

    std::string At(const std::string& name) const { return NativeText(root_ / "log" / name); }
    SafeFiles& Files() { return files_; }

    std::vector<std::string> Load() {
        std::vector<std::string> lines;
        try {
            files_.Open(1, At("FD80mSSB.txt"), FileMode::Input);
            while (!files_.EndOfFile(1)) lines.push_back(files_.LineInput(1));
        } catch (const RunTimeError&) {
            // The program also treats a failed read as the end of the log.
            failed_ = true;
        }
        files_.Close(1);
        return lines;
    }
    void Append(const std::string& line) {
        files_.Open(1, At("FD80mSSB.txt"), FileMode::Append);
        files_.PrintLine(1, line);
        files_.Close(1);
    }
    void Rewrite(const std::vector<std::string>& lines) {
        files_.Open(1, At("FDkopi.txt"), FileMode::Output);
        for (const std::string& line : lines) files_.PrintLine(1, line);
        files_.Close(1);
        files_.Replace(At("FDkopi.txt"), At("FD80mSSB.txt"));
    }
    bool Failed() const { return failed_; }

private:
    SafeFiles::Surroundings Around() const {
        SafeFiles::Surroundings surroundings;
        surroundings.state = root_ / "state";
        surroundings.now = [] { return DateTime{2026, 9, 5, 14, 5, 30, 0}; };
        return surroundings;
    }
    fs::path root_;
    DiskFiles disk_;
    SafeFiles files_;
    bool failed_ = false;
};

std::vector<std::string> Corrected(std::vector<std::string> lines) {
    for (std::string& line : lines)
        if (line == ContactLine(7, 7)) line = kCorrected;
    return lines;
}

/// The lines in the log and in the history, wherever the history is.
std::set<std::string> LinesBelow(const fs::path& root) {
    std::set<std::string> lines;
    for (const auto& [path, content] : ReadDisk(root)) {
        std::istringstream stream(content);
        for (std::string line; std::getline(stream, line);)
            if (line.ends_with('\r')) lines.insert(line.substr(0, line.size() - 1));
    }
    return lines;
}

class SafeDisk : public testing::Test {
protected:
    void SetUp() override {
        if (!CanRecord()) GTEST_SKIP() << "no process may be looked at here";
    }
    static void Put(const fs::path& root, const DiskState& state) { WriteDisk(root, state); }
    static DiskState Before() { return {{"log/FD80mSSB.txt", LogOf(kContacts)}, {"state/here.txt", "x"}}; }
};

/// Recovery with Enter only: everything that is proposed is accepted.
void TakeProposals(const fs::path& root) {
    History history(root / "log", HistoryElsewhere(root / "state", root / "log"), [] { return DateTime{2026, 9, 5, 15, 0, 0, 0}; });
    for (const Finding& finding : LookForDamage({root / "log", root / "data", "80mSSB", {2026, 9, 5, 15, 0, 0, 0}}, history))
        Repair(finding, history);
}

TEST_F(SafeDisk, APowerCutAtAnyCallLosesNoConfirmedLine) {
    const TemporaryDirectory directory;
    Put(directory.Path(), Before());
    const std::vector<DiskCall> calls = RecordCalls(directory.Path(), [&](const Teller& teller) {
        Desk desk(directory.Path());
        desk.Rewrite(Corrected(desk.Load()));
        teller.Tell();
        desk.Append(kAppended);
        teller.Tell();
    });
    DiskModel disk(Before());
    int told = 0;
    std::size_t states = 0;
    for (std::size_t cut = 0; cut <= calls.size(); ++cut) {
        for (const DiskState& state : disk.AfterPowerCut()) {
            ++states;
            ASSERT_TRUE(state.contains("log/FD80mSSB.txt")) << "no log before call " << cut;
            const TemporaryDirectory found;
            WriteDisk(found.Path(), state);
            TakeProposals(found.Path());
            std::vector<std::string> lines = Desk(found.Path()).Load();
            const std::size_t corrected = static_cast<std::size_t>(std::count(lines.begin(), lines.end(), kCorrected));
            const std::size_t old = static_cast<std::size_t>(std::count(lines.begin(), lines.end(), ContactLine(7, 7)));
            ASSERT_EQ(corrected + old, 1U) << "before call " << cut;
            if (told > 0) {
                ASSERT_EQ(corrected, 1U) << "a confirmed correction, before call " << cut;
            }
            for (int i = 1; i <= kContacts; ++i)
                if (i != 7) {
                    ASSERT_EQ(std::count(lines.begin(), lines.end(), ContactLine(i, i)), 1) << i << " before call " << cut;
                }
            if (told > 1) {
                ASSERT_EQ(std::count(lines.begin(), lines.end(), kAppended), 1) << "before call " << cut;
            }
            ASSERT_LE(lines.size(), static_cast<std::size_t>(kContacts) + 1) << "before call " << cut;
        }
        if (cut == calls.size()) break;
        if (calls[cut].kind == DiskCall::Kind::Told) ++told;
        disk.Do(calls[cut]);
    }
    EXPECT_EQ(told, 2);
    EXPECT_GT(states, calls.size()) << "some cuts must leave more than one state";
    EXPECT_EQ(disk.Shown().at("log/FD80mSSB.txt"), ReadDisk(directory.Path()).at("log/FD80mSSB.txt"));
}

TEST_F(SafeDisk, APowerCutLeavesADamagedEndThatTheProgramDoesNotSee) {
    const TemporaryDirectory directory;
    Put(directory.Path(), Before());
    const std::vector<DiskCall> calls = RecordCalls(directory.Path(), [&](const Teller&) {
        Desk desk(directory.Path());
        desk.Load();
        desk.Append(kAppended);
    });
    DiskModel disk(Before());
    std::size_t damaged = 0;
    for (const DiskCall& call : calls) {
        disk.Do(call);
        for (const DiskState& state : disk.AfterPowerCut()) {
            const TemporaryDirectory found;
            WriteDisk(found.Path(), state);
            Desk desk(found.Path());
            const std::vector<std::string> lines = desk.Load();
            ASSERT_TRUE(lines.size() == kContacts || lines.back() == kAppended) << lines.back();
            if (!desk.Files().TakeNotices().empty()) ++damaged;
        }
    }
    EXPECT_GE(damaged, 3U) << "half a line, zeros, remains of another file";
}

TEST_F(SafeDisk, AContactCostsTheCallsOfABareAppend) {
    const TemporaryDirectory directory;
    Put(directory.Path(), Before());
    const std::vector<DiskCall> calls = RecordCalls(directory.Path(), [&](const Teller&) {
        Desk desk(directory.Path());
        desk.Files().TakeDirectory(NativeText(directory.Path() / "log"));
        desk.Load();
        desk.Append(kAppended);
    });
    std::vector<DiskCall::Kind> kinds;
    for (const DiskCall& call : calls)
        if (call.path == "log/FD80mSSB.txt") kinds.push_back(call.kind);
    EXPECT_EQ(kinds, (std::vector{DiskCall::Kind::Write, DiskCall::Kind::Sync}));
    // The lock existed before.
    EXPECT_TRUE(std::none_of(calls.begin(), calls.end(), [](const DiskCall& call) { return call.kind == DiskCall::Kind::SyncDirectory; }));
}

/// The story with one failing call, and a second try of each step that failed. Its confirmations are written to a separate
/// file.
void LiveWithFault(const fs::path& root, const fs::path& journal) {
    Desk desk(root);
    std::ofstream told(journal, std::ios::binary);
    std::vector<std::string> list = desk.Load();
    const bool partly = list.size() < kContacts;
    if (partly) {
        // The operator chooses the band again.
        list = desk.Load();
    }
    const auto twice = [&](const std::function<void()>& work) {
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                work();
                return true;
            } catch (const RunTimeError&) {
                desk.Files().CloseLeftovers();
            }
        }
        return false;
    };
    if (twice([&] { desk.Append(kAppended); })) {
        list.push_back(kAppended);
        told << kAppended << "\n";
    }
    list = Corrected(list);
    if (twice([&] { desk.Rewrite(list); })) told << kCorrected << "\n";
    for (const std::string& notice : desk.Files().TakeNotices()) told << "NOTICE " << notice << "\n";
    if (desk.Failed()) told << "FAILED\n";
}

TEST_F(SafeDisk, AFaultAtAnyCallLosesNoConfirmedLine) {
#ifndef __x86_64__
    GTEST_SKIP() << "calls can be made to fail on this kind of processor only";
#endif
    std::size_t runs = 0;
    for (const int error : {EIO, ENOSPC, EACCES, 0}) {
        for (std::size_t call = 0;; ++call) {
            const TemporaryDirectory directory;
            const TemporaryDirectory beside;
            Put(directory.Path(), Before());
            const fs::path journal = beside.Path() / "journal";
            const std::string spoiled = RunWithFault(directory.Path(), {call, error}, [&] { LiveWithFault(directory.Path(), journal); });
            if (spoiled.empty()) break;
            ++runs;
            const std::string where = spoiled + ", error " + std::to_string(error);
            ASSERT_TRUE(fs::exists(directory.Path() / "log/FD80mSSB.txt")) << where;
            const std::set<std::string> lines = LinesBelow(directory.Path());
            for (int i = 1; i <= kContacts; ++i) ASSERT_TRUE(lines.contains(ContactLine(i, i))) << i << " is gone: " << where;
            std::ifstream told(journal);
            for (std::string line; std::getline(told, line);)
                if (line.size() == 79 && !line.starts_with("NOTICE")) {
                    ASSERT_TRUE(lines.contains(line)) << line << " is gone: " << where;
                }
            // The log alone must have all contacts, unless the operator was told that reading failed.
            Desk after(directory.Path());
            const std::vector<std::string> log = after.Load();
            std::ifstream again(journal);
            const std::string story{std::istreambuf_iterator<char>(again), {}};
            if (log.size() < kContacts) {
                ASSERT_NE(story.find("NOTICE"), std::string::npos) << where;
            }
        }
    }
    RecordProperty("faults", static_cast<int>(runs));
    EXPECT_GT(runs, 100U);
}

}  // namespace
}  // namespace vatro
