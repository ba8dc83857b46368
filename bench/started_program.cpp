// SPDX-License-Identifier: MIT
#include "started_program.h"

#include <stdexcept>

#include "disk_files.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "platform.h"
#include "program.h"
#include "safe_files.h"
#include "sample.h"
#include "unattended.h"

namespace vatro::bench {

namespace fs = std::filesystem;

Workplace::Workplace() {
    std::string name = (fs::current_path() / "vatro-bench-XXXXXX").string();
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
    static SafeFiles::Surroundings Around(const Workplace& workplace) {
        SafeFiles::Surroundings surroundings;
        surroundings.state = workplace.Path("state");
        surroundings.now = [] { return platform().clock.Now(); };
        return surroundings;
    }

    DiskFiles disk;
    SafeFiles files;
    MemoryPlatform memory;
    Unattended unattended;
};

Program::Program(const std::vector<std::string>& log) : services_(std::make_unique<Services>(workplace_)) {
    Services& with = *services_;
    workplace_.Furnish(log, with.memory.settings);
    with.memory.Install(with.unattended, with.files);
    with.files.TakeDirectory(NativeText(workplace_.Path("log")));
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
