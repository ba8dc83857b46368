// SPDX-License-Identifier: MIT
//
// Everything that keeps the logs of the desktop program safe: the files that lose nothing, the locks against a second copy, the
// recovery window, and the boxes that inform the operator. Created only by src/main.cpp.
#pragma once

#include "deliver.h"
#include "platform.h"
#include "recovery.h"
#include "safe_files.h"

namespace vatro {

class Safety {
public:
    /// `disk` provides the files, `perUser` the lock against another copy of the same user. All arguments must outlive this object.
    Safety(Files& disk, Clock& clock, Settings& settings, Instance& perUser);
    Safety(const Safety&) = delete;
    Safety& operator=(const Safety&) = delete;

    SafeFiles& ProgramFiles() { return files_; }
    /// Reports another copy if one runs for this user or uses the log directory of the settings. Once both locks have been acquired,
    /// checks the directory for damage.
    Instance& ProgramInstance() { return instance_; }
    /// Runs when a line of a log is on the disk.
    std::function<void(std::string_view line)> saved;
    /// Runs when a line of a log was corrected and is on the disk.
    std::function<void(std::string_view line)> corrected;
    /// Runs when a file could not be written.
    std::function<void(const std::filesystem::path& file, Failure failure)> notSaved;
    /// Run when a log is about to be written, and when it has been written or that has failed.
    std::function<void()> writeBegins;
    std::function<void(const std::filesystem::path& log)> writeEnded;
    /// Offers to merge the contacts that the second copy has more than the logs, which have been added to the history. Call as an event.
    void OfferCopy();
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
    RecoveryPlaces PlacesOf(const std::filesystem::path& directory);
    void LookThrough(const std::filesystem::path& directory);
    void HandlersAreOver();

    Settings& settings_;
    Clock& clock_;
    Instance& perUser_;
    SafeFiles files_;
    BothLocks instance_{*this};
    bool telling_ = false;
    AfterHandlers afterHandlers_{[this] { HandlersAreOver(); }};
};

}  // namespace vatro
