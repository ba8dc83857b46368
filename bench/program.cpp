// SPDX-License-Identifier: MIT
#include "program.h"

#include <stdexcept>

#include "disk/disk_files.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "replay/memory_front.h"
#include "replay/scene_clock.h"
#include "replay/settings_store.h"
#include "sample.h"

namespace vatro::bench {

namespace fs = std::filesystem;

namespace {

/// A box would stop the run for ever, so it ends it.
class NoDialogs : public Dialogs {
public:
    Answer Show(const MessageBox& box) override { throw std::runtime_error("a benchmark meets a box: " + box.text); }
    std::string SaveFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    std::string OpenFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    void ShowFailure(const RunTimeError& failure) override {
        throw std::runtime_error("a benchmark meets failure " + std::to_string(failure.Number()));
    }
};

class NoHelp : public Help {
public:
    void Show(std::string_view) override {}
};

class OnlyCopy : public Instance {
public:
    bool AnotherCopyRuns() override { return false; }
};

}  // namespace

Workplace::Workplace() {
    std::string name = (fs::current_path() / "vatro-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot create " + name);
    root_ = name;
}

Workplace::~Workplace() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

struct Program::Services {
    MemoryFront front;
    NoDialogs dialogs;
    SettingsStore settings;
    DiskFiles files;
    SceneClock clock;
    NoHelp help;
    OnlyCopy instance;
};

Program::Program(const std::vector<std::string>& log) : services_(std::make_unique<Services>()) {
    const fs::path data = workplace_.Path("data");
    const fs::path logs = workplace_.Path("log");
    fs::create_directory(data);
    fs::create_directory(logs);
    WriteTables(data);
    WriteLines(LogFile(), log);

    Services& with = *services_;
    with.settings.Write("Settings", "gsFDLib", NativeText(data));
    with.settings.Write("Settings", "gsLogLib", NativeText(logs));
    with.settings.Write("Settings", "LastOP", "OZ1QN");
    with.settings.Write("Settings", "VisInfo2002", "False");
    InstallPlatform({with.front.ProgramFront(), with.dialogs, with.settings, with.files, with.clock, with.help, with.instance, Version{}});
    BeginProgram();
    Dispatch(StartProgram);
    if (frmMain->List1.ListCount() != static_cast<int>(log.size())) throw std::runtime_error("the log was not read");
}

Program::~Program() {
    if (ProgramRuns()) EndProgram();
}

void Program::Press(const char* key) {
    services_->front.Press({.name = key});
}

void Program::Type(std::string_view text) {
    for (const char character : text) services_->front.Press({.name = {}, .character = character});
}

}  // namespace vatro::bench
