// SPDX-License-Identifier: MIT
//
// Everything that keeps the logs of the desktop program safe: the files that lose nothing, the locks against a second copy, the
// recovery window, and the boxes that inform the operator. Created only by src/main.cpp.
#pragma once

#include "platform.h"
#include "safe_files.h"

namespace vatro {

class Safety {
public:
    /// `disk` provides the files, `perUser` the lock against another copy of the same user. All arguments must outlive this object.
    Safety(Files& disk, Clock& clock, Settings& settings, Instance& perUser);
    ~Safety();
    Safety(const Safety&) = delete;
    Safety& operator=(const Safety&) = delete;

    SafeFiles& ProgramFiles() { return files_; }
    /// Reports another copy if one runs for this user or uses the log directory of the settings. Once both locks have been acquired,
    /// checks the directory for damage.
    Instance& ProgramInstance() { return instance_; }
    /// At the end of the program: shows the messages that have not been shown yet.
    void TellRest();

private:
    class BothLocks : public Instance {
    public:
        explicit BothLocks(Safety& safety) : safety_(safety) {}
        bool AnotherCopyRuns() override;

    private:
        Safety& safety_;
    };

    SafeFiles::Surroundings Surroundings();
    void LookThrough(const std::filesystem::path& directory);
    void HandlersAreOver();

    Settings& settings_;
    Clock& clock_;
    Instance& perUser_;
    SafeFiles files_;
    BothLocks instance_{*this};
    bool telling_ = false;
};

}  // namespace vatro
