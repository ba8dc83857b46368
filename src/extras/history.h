// SPDX-License-Identifier: MIT
//
// Earlier versions of the files that the program replaces, so that nothing that was ever in a log is lost.
//
// A version is stored in the folder "historik" beside the file, as a hard link to the old content if the file system supports that.
// Otherwise, as on most USB sticks, it is a copy in a directory on the user's computer. Its name shows which file it was, its number in
// the sequence of versions, when it was replaced, and why it is kept:
//
//     FD80mSSB-0012 2026-09-05 14.05.30.txt            by age
//     FD80mSSB-0012 2026-09-05 14.05.30 behold.txt     always: it holds a contact that its successor lacks
//     FD80mSSB-0012 2026-09-05 14.05.30 samles.txt     always: the program had not seen all of it when it was replaced
//     FD80mSSB-0012 2026-09-05 14.05.30 fra kopi.txt   always: found in the second copy, it holds a contact that the log lacks
//
// Versions kept by age are the newest 20 of a file and, among older ones, the newest of each hour.
//
// Several threads may use the history of one directory, each with an object of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datetime.h"

namespace vatro {

class History {
public:
    /// How long a version is kept. ToMerge and FromCopy are kept like Always; in addition, recovery proposes to merge them into the log.
    enum class Keep { ByAge, Always, ToMerge, FromCopy };

    /// One earlier version of a file.
    struct Version {
        std::filesystem::path path;
        int number = 0;
        Keep keep = Keep::ByAge;
        DateTime when;
    };

    /// The history of the files in `directory`. `elsewhere` is the directory on the computer for versions that cannot be stored beside
    /// their file; it is created when needed. `now` returns the local time.
    History(const std::filesystem::path& directory, std::filesystem::path elsewhere, std::function<DateTime()> now);

    /// Adds the file as the newest version; the file itself stays in place. The version is on disk on return. Fails with the disk's
    /// failure.
    Version Add(const std::filesystem::path& file, Keep keep);
    /// Like Add, but always makes a copy, for a file that will be changed in place.
    Version AddCopy(const std::filesystem::path& file, Keep keep);
    /// Adds a content that is not in a file of this directory as the newest version of the file `name`. It is stored elsewhere.
    Version AddContent(std::string_view name, std::string_view content, Keep keep);
    /// Like Add, but moves the file: it no longer exists under its own name.
    Version Move(const std::filesystem::path& file, Keep keep);
    /// Writes `text` to a file beside the version, with the version's name followed by "note". A failure is not reported.
    static void AddNote(const Version& version, std::string_view text);

    /// Marks a version to be merged as merged; it is still kept always. A failure is not reported: the merge is then proposed again.
    static void MarkMerged(const std::filesystem::path& version);

    /// All versions of a file, newest first. `name` is the name of the file, such as "FD80mSSB.txt".
    std::vector<Version> Versions(std::string_view name) const;
    /// The newest version, or nothing if there is none.
    std::optional<Version> Newest(std::string_view name) const;

    /// Removes those versions of a file that are kept by age and are too old. A failure is not reported.
    void Prune(std::string_view name) const;

private:
    /// How a file becomes a version.
    enum class Way { LinkOrCopy, Copy, Move };

    Version Take(const std::filesystem::path& file, Keep keep, Way way);
    Version Next(std::string_view name, Keep keep) const;
    Version StoreElsewhere(Version version, std::string_view name, std::string_view content) const;
    bool TakeBeside(const std::filesystem::path& file, Version& version, Way way) const;

    std::filesystem::path beside_;
    std::filesystem::path elsewhere_;
    std::function<DateTime()> now_;
};

/// The directory for versions of files in `directory` that cannot be stored beside them. It lies below `state`, the user's directory
/// for program data; each `directory` has its own.
std::filesystem::path HistoryElsewhere(const std::filesystem::path& state, const std::filesystem::path& directory);

/// The user's directory for program data: $XDG_STATE_HOME/vatro or ~/.local/state/vatro; on Windows %LOCALAPPDATA%\vatro. Defined in
/// history_posix.cpp and history_windows.cpp.
std::filesystem::path StateDirectory();

}  // namespace vatro
