// SPDX-License-Identifier: MIT
//
// Cuts the power at any moment. A child process plays a contest and is killed with a signal that it cannot catch. The test then
// looks on the disk for everything that the process had confirmed.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <thread>
#include <vector>

#include "frame/log_file.h"
#include "frame/start.h"
#include "frame/state.h"
#include "memory_front.h"
#include "player.h"
#include "power/teller.h"
#include "program.h"
#include "scenario.h"
#include "temporary_directory.h"
#include "world.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLineWidth = 79;

/// Runs `life` in a child process and kills it `wait` after its first confirmation. Returns the number of confirmations. A life
/// that fails confirms nothing more.
template <class Life>
std::size_t KillAfter(std::chrono::microseconds wait, Life life) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        try {
            life(Teller(ends[1]));
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    close(ends[1]);
    std::size_t told = 0;
    char bytes[4096];
    const auto listen = [&](std::size_t most) {
        const ssize_t got = read(ends[0], bytes, most);
        told += got > 0 ? static_cast<std::size_t>(got) : 0;
        return got > 0;
    };
    listen(1);
    std::this_thread::sleep_for(wait);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (listen(sizeof bytes)) {
    }
    close(ends[0]);
    return told;
}

/// The in-memory front, which confirms each return from Enter.
class TellsEnter : public MemoryFront {
public:
    explicit TellsEnter(Teller teller) : teller_(teller) {}
    void Press(const KeyStroke& key) override {
        MemoryFront::Press(key);
        if (key.name == "Enter") teller_.Tell();
    }

private:
    Teller teller_;
};

std::string Call(int number) {
    std::string call = "DL";
    call += static_cast<char>('0' + number % 10);
    for (int divisor : {10, 260}) call += static_cast<char>('A' + number / divisor % 26);
    return call + "Q";
}

std::string Setting() {
    return "file data/lande.txt\n| DL        Fed. Rep. of Germany     EU -1 \n"
           "file data/refpfx.txt\n| DL        DL        14 28\n"
           "file data/edr.txt\n| OZ1ABC Test\n"
           "file data/operator.txt\n| OZ1AB\n"
           "setting Settings gsLogLib log\nsetting Settings LastOP OZ1AB\nsetting Settings VisInfo2002 False\n";
}

std::string Contest(int contacts) {
    std::ostringstream scenario;
    scenario << Setting() << "start\n";
    for (int i = 0; i < contacts; ++i) scenario << "type " << Call(i) << "\nkey Space\ntype 7\nkey Enter\n";
    return scenario.str();
}

std::string Content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class PowerCut : public testing::Test {
protected:
    /// A fresh world, untouched by earlier cuts.
    fs::path NextWorld() {
        const fs::path world = root / std::to_string(worlds_++);
        fs::create_directory(world);
        return world;
    }
    std::chrono::microseconds Moment(int longest) {
        return std::chrono::microseconds(std::uniform_int_distribution<>(0, longest)(random_));
    }

    const TemporaryDirectory temporary;
    const fs::path& root = temporary.Path();

private:
    int worlds_ = 0;
    // A fixed seed: with random moments a failure would be hard to reproduce.
    std::mt19937 random_{20260905};
};

TEST_F(PowerCut, NeverLosesALineWhoseEnterHadReturned) {
    const Scenario contest(Contest(400));
    std::size_t cutShort = 0;
    for (int cut = 0; cut < 150; ++cut) {
        const fs::path directory = NextWorld();
        const std::size_t logged = KillAfter(Moment(60000), [&](Teller teller) {
            const World world(directory);
            TellsEnter front(teller);
            Player(contest, world, front, StartProgram).Play();
        });
        const std::string log = Content(directory / "log" / "FD80mSSB.txt");
        const std::size_t lines = log.size() / (kLineWidth + 2);
        // A write that crosses a page boundary of the system's memory can be cut there.
        const std::size_t begun = log.size() % (kLineWidth + 2) != 0 ? 1 : 0;
        ASSERT_GE(lines, logged);
        ASSERT_LE(lines + begun, logged + 1) << "only the contact under way may be on disk beside those told of";
        for (std::size_t i = 0; i < lines; ++i) {
            const std::string line = log.substr(i * (kLineWidth + 2), kLineWidth + 2);
            ASSERT_EQ(line.substr(6, 6), Call(static_cast<int>(i)));
            ASSERT_EQ(line.substr(kLineWidth), "\r\n");
        }
        if (lines < 400) ++cutShort;
        fs::remove_all(directory);
    }
    EXPECT_GT(cutShort, 100U) << "the cuts came too late to prove anything";
}

/// A log in which every line names its version.
std::string Version(char mark, int lines) {
    std::string log;
    for (int i = 0; i < lines; ++i) {
        std::string line = "10:10 DL1AA           59 -0007 59 -0003  3            OZ1DEF     SSB   05-09-26";
        line[50] = mark;
        log += line + "\r\n";
    }
    return log;
}

/// The in-memory front; a key rewrites the log again and again, alternating between two versions.
class RewritingFront : public MemoryFront {
public:
    explicit RewritingFront(Teller teller) : teller_(teller) {}
    [[noreturn]] void Press(const KeyStroke&) override {
        for (char mark = 'B';; mark = mark == 'A' ? 'B' : 'A') {
            Dispatch([mark] { Rewrite(mark); });
            teller_.Tell();
        }
    }

private:
    static void Rewrite(char mark) {
        Log& log = desk().log;
        for (std::size_t row = 0; row < log.Lines().size(); ++row) {
            std::string line = log.Lines()[row];
            line[50] = mark;
            log.Replace(row, line);
        }
        SkrivLog();
    }
    Teller teller_;
};

TEST_F(PowerCut, LeavesTheOldLogOrTheNewOneOrTheWholeCopy) {
    constexpr int kLines = 300;
    const Scenario start(Setting() + "start\nkey F2\n");
    const std::string versions[]{Version('A', kLines), Version('B', kLines)};
    const auto whole = [&](const std::string& content) { return content == versions[0] || content == versions[1]; };
    std::size_t copies = 0;
    for (int cut = 0; cut < 150; ++cut) {
        const fs::path directory = NextWorld();
        fs::create_directory(directory / "log");
        const fs::path log = directory / "log" / "FD80mSSB.txt";
        std::ofstream(log, std::ios::binary) << versions[0];
        const std::size_t rewritten = KillAfter(Moment(20000), [&](Teller teller) {
            const World world(directory);
            RewritingFront front(teller);
            Player(start, world, front, StartProgram).Play();
        });
        ASSERT_GT(rewritten, 0U);
        if (fs::exists(log)) {
            ASSERT_TRUE(whole(Content(log))) << "the log is neither the old one nor the new one";
        } else {
            ASSERT_TRUE(whole(Content(directory / "log" / "FDkopi.txt"))) << "the log is gone and the copy is not whole";
            ++copies;
        }
        fs::remove_all(directory);
    }
    RecordProperty("copies_found", static_cast<int>(copies));
}

/// The in-memory front, which confirms that it opened the log and each return from a correction.
class CorrectingFront : public MemoryFront {
public:
    explicit CorrectingFront(Teller teller) : teller_(teller) {}
    void Press(const KeyStroke& key) override {
        MemoryFront::Press(key);
        if (key.name == "F2") teller_.Tell();
    }
    void DoubleClick(ListBox& list, int row) override {
        MemoryFront::DoubleClick(list, row);
        teller_.Tell();
    }

private:
    Teller teller_;
};

/// A log of 300 contacts. Each correction gives a different line a different received number.
class CorrectedLog {
public:
    static constexpr int kLines = 300;

    /// The whole file after this many corrections.
    std::string After(std::size_t corrections) const {
        std::vector<int> received(kLines, 7);
        for (std::size_t i = 0; i < corrections; ++i) received[static_cast<std::size_t>(Line(i))] = Number(i);
        std::string log;
        for (int i = 0; i < kLines; ++i) {
            char line[kLineWidth + 3];
            std::snprintf(line, sizeof line, "10:10 %-15s 59 -%04d 59 -%04d  3 %-10s OZ1AB      SSB   05-09-26\r\n", Call(i).c_str(), i + 1,
                          received[static_cast<std::size_t>(i)], i == 0 ? "DL" : "");
            log += line;
        }
        return log;
    }
    std::string Corrections(std::size_t count) const {
        std::ostringstream scenario;
        for (std::size_t i = 0; i < count; ++i) {
            scenario << "dblclick frmMain.List1 " << Line(i) << "\nfocus frmRetQSO.Text1(5)\n";
            for (int key = 0; key < 4; ++key) scenario << "key Backspace\n";
            scenario << "type " << Number(i) << "\nkey Enter\n";
        }
        return scenario.str();
    }

private:
    // The lines are not corrected in order, so a file that mixes two versions is detected.
    static int Line(std::size_t correction) { return static_cast<int>(correction * 37 % kLines); }
    static int Number(std::size_t correction) { return 1000 + static_cast<int>(correction); }
};

TEST_F(PowerCut, DuringACorrectionLeavesTheOldLogOrTheNewOneOrTheWholeCopy) {
    constexpr std::size_t kCorrections = 1000;
    constexpr int kCuts = 300;
    const CorrectedLog corrected;
    const Scenario contest(Setting() + "start\nkey F2\n" + corrected.Corrections(kCorrections));
    int cutShort = 0;
    int halfway = 0;
    for (int cut = 0; cut < kCuts; ++cut) {
        const fs::path directory = NextWorld();
        fs::create_directory(directory / "log");
        const fs::path log = directory / "log" / "FD80mSSB.txt";
        const fs::path copy = directory / "log" / "FDkopi.txt";
        std::ofstream(log, std::ios::binary) << corrected.After(0);
        const std::size_t told = KillAfter(Moment(20000), [&](Teller teller) {
            const World world(directory);
            CorrectingFront front(teller);
            Player(contest, world, front, StartProgram).Play();
        });
        ASSERT_GT(told, 0U) << "the program has not come up";
        const std::size_t done = told - 1;
        if (done < kCorrections) ++cutShort;
        if (fs::exists(copy)) ++halfway;
        if (fs::exists(log)) {
            const std::string content = Content(log);
            ASSERT_TRUE(content == corrected.After(done) || content == corrected.After(done + 1))
                << "after " << done << " corrections the log is neither the old one nor the new one";
        } else {
            ASSERT_EQ(Content(copy), corrected.After(done + 1)) << "the log is gone and the copy is not whole";
        }
        fs::remove_all(directory);
    }
    EXPECT_EQ(cutShort, kCuts) << "a life ended by itself";
    EXPECT_GT(halfway, kCuts / 10) << "the cuts fell beside the rewriting";
    RecordProperty("halfway", halfway);
}

}  // namespace
}  // namespace vatro
