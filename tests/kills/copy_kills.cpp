// SPDX-License-Identifier: MIT
//
//   vatro-copy-kills LIVES [SEED]
//
// In each life a process logs and corrects as fast as it can, with a live second copy on a stick. It is killed at a random moment;
// before that the stick may be pulled, brought back and filled to the brim, also in the middle of a copy. The process writes down the
// content of the log that each step leads to before it takes the step. The copy must be one of these contents at every moment, an empty
// mount point must stay empty, and in every fifth life, once the stick is back and the process has stopped logging, the copy must equal
// the log within two seconds.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "disk_files.h"
#include "kills/stick.h"
#include "live_copy.h"
#include "log_text.h"
#include "names.h"
#include "safe_files.h"
#include "temporary_directory.h"
#include "whole_file.h"

namespace vatro {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr const char* kLog = "FD80mSSB.txt";
constexpr milliseconds kPromised{2000};
/// A log of this many contacts is about as long as the stick has room for, twice.
constexpr std::size_t kMost = 900;

volatile std::sig_atomic_t stop = 0;

DateTime Now() {
    return {2026, 9, 5, 12, 0, 0, 0};
}

std::string Content(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string Contact(std::size_t number, std::mt19937::result_type version) {
    char line[96];
    std::snprintf(line, sizeof line, "12:%02zu DL%04lxA          59 -%04zu 59 -0003  3            OZ1DEF     SSB   05-09-26", number % 60,
                  version % 0x10000, number);
    return line;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content += line + "\r\n";
    return content;
}

/// The contents that the log has had or was about to get, as checksums of one line each.
class States {
public:
    explicit States(fs::path file) : file_(std::move(file)) {}
    /// Written by the process that will be killed.
    void Add(std::string_view content) const {
        const int file = open(file_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
        const std::string line = std::to_string(ContentHash(content)) + "\n";
        if (write(file, line.data(), line.size()) < 0) std::_Exit(3);
        close(file);
    }
    bool Has(std::string_view content) const {
        std::ifstream in(file_);
        const std::size_t wanted = ContentHash(content);
        for (std::size_t hash = 0; in >> hash;)
            if (hash == wanted) return true;
        return false;
    }

private:
    fs::path file_;
};

struct World {
    fs::path root;
    fs::path stick;
    States states;

    fs::path Log() const { return root / "log" / kLog; }
};

/// One life: logs until it is killed, or until it is told to stop; then it only copies.
[[noreturn]] void Live(const World& world, bool first, std::mt19937::result_type seed) {
    std::signal(SIGUSR1, [](int) { stop = 1; });
    LiveCopy::Options options;
    options.universal = Now;
    LiveCopy copy(std::move(options));
    DiskFiles disk;
    SafeFiles::Surroundings surroundings;
    surroundings.state = world.root / "state";
    surroundings.now = Now;
    surroundings.writeBegins = [&copy] { copy.WriteBegins(); };
    surroundings.writeEnded = [&copy](const fs::path& log) { copy.WriteEnded(NativeText(log.filename())); };
    SafeFiles files(disk, std::move(surroundings));
    if (!files.TakeDirectory(NativeText(world.root / "log"))) std::_Exit(4);
    SecondCopy::Surroundings ofCopy;
    ofCopy.now = Now;
    ofCopy.state = world.root / "state";
    ofCopy.writes = copy.Writes();
    copy.Follow(std::make_unique<SecondCopy>(CopyPlaces{world.root / "log", world.stick, {}, "id"}, std::move(ofCopy)), first);

    const std::string log = NativeText(world.Log());
    const std::string beside = NativeText(world.root / "log/FDkopi.txt");
    std::vector<std::string> lines;
    if (fs::exists(world.Log())) {
        files.Open(1, log, FileMode::Input);
        while (!files.EndOfFile(1)) lines.push_back(files.LineInput(1));
        files.Close(1);
    }
    std::mt19937 random(seed);
    while (stop == 0) {
        const bool corrects = !lines.empty() && (random() % 5 == 0 || lines.size() >= kMost);
        const std::size_t which = corrects ? random() % lines.size() : lines.size();
        if (!corrects) lines.emplace_back();
        lines[which] = Contact(which + 1, random());
        world.states.Add(Joined(lines));
        if (corrects) {
            files.Open(1, beside, FileMode::Output);
            for (const std::string& line : lines) files.PrintLine(1, line);
            files.Close(1);
            files.Replace(beside, log);
        } else {
            files.Open(1, log, FileMode::Append);
            files.PrintLine(1, lines.back());
            files.Close(1);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
    }
    while (true) pause();
}

class Test {
public:
    Test(const fs::path& root, unsigned seed)
        : stick_(root), world_{root, stick_.MountPoint(), States(root / "states.txt")}, random_(seed) {
        fs::create_directory(root / "log");
    }

    void Play(int life) {
        const pid_t process = fork();
        if (process == 0) Live(world_, life == 0, random_());
        random_.discard(1);
        Wait(30);
        if (life == 0) Expect(Becomes([this] { return fs::exists(Copy()); }), "the stick is taken in use");
        if (Chance(2)) stick_.Fill();
        Wait(20);
        if (Chance(2)) {
            stick_.Pull();
            ++pulls;
            CheckCopy("after the pull");
            Wait(20);
            Expect(fs::is_empty(stick_.MountPoint()), "the empty mount point stays empty");
            if (Chance(2)) Return();
        }
        if (life % 5 == 4) {
            kill(process, SIGUSR1);
            stick_.MakeRoom();
            Wait(10);
            if (stick_.Pulled()) Return();
            Expect(Becomes([this] { return Content(Copy()) == Content(world_.Log()); }), "the copy equals the log within two seconds");
        }
        Wait(10);
        kill(process, SIGKILL);
        int status = 0;
        waitpid(process, &status, 0);
        Expect(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL, "the process lives until it is killed");
        if (stick_.Pulled()) Return();
        stick_.MakeRoom();
        CheckCopy("after the kill");
    }

    /// Nothing may look as if somebody else had written it: every copy is an earlier state of its log.
    void CheckEnd() {
        Expect(!fs::exists(stick_.Content() / "tidligere"), "no copy is set aside");
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(world_.root / "state", error))
            Expect(NativeText(entry.path().filename()).find("fra kopi") == std::string::npos, "no contact is found in the copy alone");
    }

    void Report(int lives) const {
        std::printf("%d lives, %d pulls (%s), %d copies checked, %d contacts in the log; %d faults\n", lives, pulls,
                    stick_.Mounts() ? "unmounted and filled" : "renamed, not filled: this process may not mount", checked,
                    static_cast<int>(ReadLogText(Content(world_.Log())).lines.size()), faults);
    }

    int faults = 0;

private:
    fs::path Copy() const { return stick_.Content() / kLog; }
    bool Chance(unsigned ofHowMany) { return random_() % ofHowMany == 0; }
    void Wait(unsigned most) { std::this_thread::sleep_for(std::chrono::microseconds(random_() % (most * 1000))); }
    void Return() {
        stick_.MakeRoom();
        stick_.BringBack();
    }
    void Expect(bool holds, const char* what) {
        if (holds) return;
        ++faults;
        std::printf("not so: %s\n", what);
    }
    template <class Condition>
    static bool Becomes(Condition condition) {
        const auto end = Clock::now() + kPromised;
        while (Clock::now() < end) {
            if (condition()) return true;
            std::this_thread::sleep_for(milliseconds(5));
        }
        return condition();
    }
    void CheckCopy(const char* when) {
        if (!fs::exists(Copy())) return;
        ++checked;
        const std::string copy = Content(Copy());
        Expect(world_.states.Has(copy), when);
    }

    Stick stick_;
    World world_;
    std::mt19937 random_;
    int pulls = 0;
    int checked = 0;
};

}  // namespace

}  // namespace vatro

int main(int argc, char** argv) {
    const int lives = argc > 1 ? std::atoi(argv[1]) : 100;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : std::random_device()();
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    const vatro::TemporaryDirectory directory;
    vatro::Test test(directory.Path(), seed);
    for (int life = 0; life < lives; ++life) test.Play(life);
    test.CheckEnd();
    test.Report(lives);
    return test.faults == 0 ? 0 : 1;
}
