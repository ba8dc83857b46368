// SPDX-License-Identifier: MIT
//
// The second copy of the logs, in a directory that the operator has chosen, usually on a USB stick. It is there in case the computer is
// lost in the middle of the contest: with the stick, another one goes on.
//
// - A copy is at every moment a whole state of its log, the present one or an earlier one.
// - The file "vatro.kopi" marks the directory. Where it is missing nothing is written: the directory is then an empty mount point, or
//   another stick.
// - Nothing is deleted. A file that is not an earlier state of its log is moved to the folder "tidligere" first.
// - Contacts of the copy that the log lacks are added to the history of the log, and recovery proposes to merge them. If the copy was made
//   from the logs of another directory, only those that this other directory lacks too.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "datetime.h"
#include "history.h"
#include "system_file.h"

namespace vatro {

/// Where the logs are and where their copies go. Two programs that use the same directory for different logs are told apart by `id`, a
/// text of one line that is unique to this user and computer.
struct CopyPlaces {
    std::filesystem::path logs;
    std::filesystem::path copies;
    /// The directory of the backups by hand, which is never touched. May be empty.
    std::filesystem::path backups;
    std::string id;
    friend bool operator==(const CopyPlaces&, const CopyPlaces&) = default;
};

/// What became of an attempt to bring the copies up to date.
struct CopyOutcome {
    /// Whether every copy equals its log.
    bool done = false;
    /// If not done: why, as a sentence or two in the code page. Empty if the log was just being written, so that the next attempt is due
    /// at once.
    std::string reason;
    /// How many contacts have been found in a copy that are in no log.
    std::size_t found = 0;
    /// Whether logs and copies are on the same disk.
    bool sameDisk = false;
};

/// What the thread of LiveCopy does with files. The calls may take as long as the disk pleases.
class CopyWork {
public:
    virtual ~CopyWork() = default;
    /// Marks the directory, which the operator has just chosen, as the place of the copies, then brings all of
    /// them up to date.
    virtual CopyOutcome Adopt() = 0;
    /// Brings copies up to date. `changed` are the names of logs that have changed since the last call; if the last call was not done, or
    /// the directory is another one now, all logs are compared.
    virtual CopyOutcome Update(const std::set<std::string>& changed) = 0;
};

/// Used on one thread at a time.
class SecondCopy : public CopyWork {
public:
    /// What the copies need from the rest of the program.
    struct Surroundings {
        /// The local time. Called on the thread of the copy.
        std::function<DateTime()> now;
        /// A number that is odd while a log is being written, and another one afterwards. Called on the thread of the copy.
        std::function<unsigned()> writes = [] { return 0U; };
        /// The user's directory for program data.
        std::filesystem::path state;
    };

    SecondCopy(CopyPlaces places, Surroundings surroundings);
    CopyOutcome Adopt() override;
    CopyOutcome Update(const std::set<std::string>& changed) override;

private:
    /// A copy as this object last left it.
    struct Left {
        std::size_t size = 0;
        std::size_t hash = 0;
        /// The length of the log then; 0 if it was missing.
        std::size_t logSize = 0;
    };

    /// What a copy holds that its log does not.
    struct Unknown {
        /// Whether there is anything that is not safe without the copy.
        bool lines = false;
        /// How many contacts the log lacks, even in other words, and the operator has not been offered yet.
        std::size_t contacts = 0;
    };

    CopyOutcome Try(bool adopt, const std::set<std::string>& changed);
    void Adopt(const std::filesystem::path& directory) const;
    void Mark(const std::filesystem::path& directory) const;
    void CheckMark(const std::filesystem::path& directory);
    bool IsOurs(std::string_view marker) const;
    void LookForChanges(const std::filesystem::path& directory);
    std::string CopyDue(const std::filesystem::path& directory);
    void CopyLog(const std::filesystem::path& directory, const std::string& name);
    std::optional<std::string> ReadLog(const std::filesystem::path& log) const;
    bool Append(const std::filesystem::path& copy, std::string_view log, const Left& left) const;
    std::string OtherLog(const std::string& name) const;
    Unknown LookForUnknown(const std::string& name, std::string_view copy, std::string_view log) const;
    void SetAside(const std::filesystem::path& copy) const;

    CopyPlaces places_;
    Surroundings surroundings_;
    /// Logs whose copies have to be compared.
    std::set<std::string> due_;
    std::optional<FileIdentity> directory_;
    std::map<std::string, Left> left_;
    /// The directory of the logs that the copies were made from, if it is another one; empty if it is not known.
    std::optional<std::filesystem::path> otherLogs_;
    std::size_t found_ = 0;
};

}  // namespace vatro
