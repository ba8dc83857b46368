// SPDX-License-Identifier: MIT
#include "started_program.h"

#include <chrono>
#include <functional>
#include <stdexcept>
#include <thread>
#include <utility>

#include "disk_files.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "last_contact.h"
#include "live_copy.h"
#include "platform.h"
#include "program.h"
#include "safe_files.h"
#include "sample.h"
#include "unattended.h"

namespace vatro::bench {

namespace fs = std::filesystem;

Workplace::Workplace() : Workplace(fs::current_path()) {}

Workplace::Workplace(const fs::path& above) {
    std::string name = (above / "vatro-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot create " + name);
    root_ = name;
}

Workplace::~Workplace() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

fs::path Workplace::LogFile() const {
    return Path("log") / "FD80mSSB.txt";
}

void Workplace::Furnish(const std::vector<std::string>& log, Settings& settings) const {
    fs::create_directory(Path("data"));
    fs::create_directory(Path("log"));
    WriteTables(Path("data"));
    WriteLines(LogFile(), log);
    settings.Write("Settings", "gsFDLib", NativeText(Path("data")));
    settings.Write("Settings", "gsLogLib", NativeText(Path("log")));
    settings.Write("Settings", "LastOP", "OZ1QN");
    settings.Write("Settings", "VisInfo2002", "False");
}

/// Uses the file access of the desktop program, which keeps a version of every file it replaces.
struct Program::Services {
    explicit Services(const Workplace& workplace) : files(disk, Around(workplace)) {}
    SafeFiles::Surroundings Around(const Workplace& workplace) {
        SafeFiles::Surroundings surroundings;
        surroundings.saved = [this](std::string_view line) { saved(line); };
        surroundings.writeBegins = [this] { writeBegins(); };
        surroundings.writeEnded = [this](const fs::path& log) { writeEnded(log); };
        surroundings.state = workplace.Path("state");
        surroundings.now = [] { return platform().clock.Now(); };
        return surroundings;
    }

    std::function<void(std::string_view)> saved = [](std::string_view) {};
    std::function<void()> writeBegins = [] {};
    std::function<void(const fs::path&)> writeEnded = [](const fs::path&) {};
    DiskFiles disk;
    SafeFiles files;
    MemoryPlatform memory;
    Unattended unattended;
};

/// What follows each contact in the desktop program.
struct Program::Follower {
    Follower(Services& services, const Workplace& workplace) : stick(fs::exists("/dev/shm") ? "/dev/shm" : fs::current_path()) {
        services.saved = [this](std::string_view line) { lastContact.Saved(line, kNow); };
        services.writeBegins = [this] { copy.WriteBegins(); };
        services.writeEnded = [this](const fs::path& file) { copy.WriteEnded(NativeText(file.filename())); };
        SecondCopy::Surroundings surroundings;
        surroundings.now = [] { return kNow; };
        surroundings.writes = copy.Writes();
        surroundings.state = workplace.Path("state");
        copy.Follow(std::make_unique<SecondCopy>(CopyPlaces{workplace.Path("log"), stick.Path(""), {}, "id"}, std::move(surroundings)),
                    true);
        while (!copy.Status().current) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ~Follower() { copy.End(std::chrono::seconds(20)); }

    static constexpr DateTime kNow{2026, 9, 5, 15, 0, 0, 0};
    Workplace stick;
    LastContact lastContact;
    LiveCopy copy{{.universal = [] { return kNow; }, .changed = [] {}}};
};

Program::Program(const std::vector<std::string>& log, With everything) : services_(std::make_unique<Services>(workplace_)) {
    Services& with = *services_;
    workplace_.Furnish(log, with.memory.settings);
    with.memory.Install(with.unattended, with.files);
    with.files.TakeDirectory(NativeText(workplace_.Path("log")));
    if (everything == With::LampsAndCopy) follower_ = std::make_unique<Follower>(with, workplace_);
    BeginProgram();
    Dispatch(StartProgram);
    if (frmMain->log.ListCount() != static_cast<int>(log.size())) throw std::runtime_error("the log was not read");
}

Program::~Program() {
    if (ProgramRuns()) EndProgram();
}

void Program::Press(const char* key) {
    services_->memory.front.Press({.name = key});
}

void Program::Type(std::string_view text) {
    for (const char character : text) services_->memory.front.Press({.name = {}, .character = character});
}

}  // namespace vatro::bench
