// SPDX-License-Identifier: MIT
//
// What keeps the logs of the desktop program safe, put together: the files that lose nothing, the locks against a second copy, the
// window that repairs, and the boxes that tell. src/main.cpp alone makes one.
#pragma once

#include "platform.h"
#include "safe_files.h"

namespace vatro {

class Safety {
public:
    /// `disk` has the files, `perUser` the lock against a copy of the same user; all must outlive this.
    Safety(Files& disk, Clock& clock, Settings& settings, Instance& perUser);
    ~Safety();
    Safety(const Safety&) = delete;
    Safety& operator=(const Safety&) = delete;

    SafeFiles& ProgramFiles() { return files_; }
    /// Another copy runs for this user, or has the log directory of the settings. Once both locks are won the directory is looked
    /// at for damage.
    Instance& ProgramInstance() { return instance_; }
    /// Shows what has not been told yet, at the end of the program.
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
