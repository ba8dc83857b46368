// SPDX-License-Identifier: MIT
//
// A program without a user, for benchmarks, fuzz targets and tools: everything in memory except the files.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "codepage.h"
#include "memory_front.h"
#include "page.h"
#include "platform.h"
#include "scene_clock.h"
#include "scene_pages.h"
#include "scene_sound.h"
#include "settings_store.h"

namespace vatro {

/// Cancels every dialogue. A message box or a failure would wait for an answer for ever, so it ends the run with an exception that
/// describes it; derive from this class to handle expected boxes. Reports that no other copy runs, and does not show help.
class NobodyThere : public Dialogs, public Help, public Instance {
public:
    Answer Show(const MessageBox& box) override { throw std::runtime_error("a box with nobody there: " + ToUtf8(box.text)); }
    std::string SaveFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    std::string OpenFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    void SetUpPrinter() override { throw RunTimeError(Failure::Cancelled); }
    void ShowFailure(const RunTimeError& failure) override {
        throw std::runtime_error("failure " + std::to_string(failure.Number()) + " with nobody there");
    }
    void Show(std::string_view) override {}
    bool AnotherCopyRuns() override { return false; }
};

/// The rest of the platform. Must outlive the program that runs on it.
struct MemoryPlatform {
    MemoryFront front;
    SettingsStore settings;
    SceneClock clock;
    SceneSound sound{clock};
    ScenePages pages;
    PageSurface printer{pages};

    /// Installs this platform for the program. `nobody` and `files` must outlive the program.
    void Install(NobodyThere& nobody, Files& files) {
        InstallPlatform(front.ProgramFront(), {nobody, settings, files, clock, nobody, nobody, sound, printer, Version{}});
    }
};

}  // namespace vatro
