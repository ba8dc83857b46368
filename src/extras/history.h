// SPDX-License-Identifier: MIT
//
// Earlier versions of the files that the program replaces, so that nothing that was ever in a log is gone.
//
// A version lies in the folder "historik" beside the file, as another name of the same content where the file system can give
// one; otherwise, as on most USB sticks, it is a copy in a directory of the user's computer. Its name tells which file it was,
// its number in the order of all versions, when it was replaced, and why it is kept:
//
//     FD80mSSB-0012 2026-09-05 14.05.30.txt            by age
//     FD80mSSB-0012 2026-09-05 14.05.30 behold.txt     always: it holds a contact that its successor lacks
//     FD80mSSB-0012 2026-09-05 14.05.30 samles.txt     always: the program had not seen all of it when it was replaced
//
// By age the newest 20 versions of a file are kept, and of those before them the newest of each hour.
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
    enum class Keep { ByAge, Always, ToMerge };

    struct Version {
        std::filesystem::path path;
        int number = 0;
        Keep keep = Keep::ByAge;
        DateTime when;
    };

    /// Of the files in `directory`. `elsewhere` is the directory on the computer for what cannot lie beside them; it is created
    /// when it is needed. `now` gives the local time.
    History(std::filesystem::path directory, std::filesystem::path elsewhere, std::function<DateTime()> now);

    /// Makes the file the newest version of its name; the name stays. It is on the disk on return. Fails with what the disk says.
    Version Add(const std::filesystem::path& file, Keep keep);
    /// As Add, but always a copy: the file will be changed in its place.
    Version AddCopy(const std::filesystem::path& file, Keep keep);
    /// As Add, but the file loses its own name.
    Version Move(const std::filesystem::path& file, Keep keep);
    /// Writes `text` in a file beside the version, under its name with "note" behind it. A failure is not reported.
    static void AddNote(const Version& version, std::string_view text);

    /// A version that was kept to be merged has been; it is kept all the same. A failure is not reported: it is proposed again.
    static void MarkMerged(const std::filesystem::path& version);

    /// All versions of a file, given by its name such as "FD80mSSB.txt", the newest first.
    std::vector<Version> Versions(std::string_view name) const;
    std::optional<Version> Newest(std::string_view name) const;

    /// Removes the versions of a file that are neither young nor marked. A failure is not reported.
    void Prune(std::string_view name) const;

private:
    enum class Way { LinkOrCopy, Copy, Move };

    Version Take(const std::filesystem::path& file, Keep keep, Way way);
    Version Next(const std::filesystem::path& file, Keep keep) const;
    bool TakeBeside(const std::filesystem::path& file, Version& version, Way way) const;

    std::filesystem::path beside_;
    std::filesystem::path elsewhere_;
    std::function<DateTime()> now_;
};

/// Where versions go that cannot lie beside their file: a directory for each `directory`, below `state`, which is the user's
/// directory for what programs keep.
std::filesystem::path HistoryElsewhere(const std::filesystem::path& state, const std::filesystem::path& directory);

/// The user's directory for what the program keeps: $XDG_STATE_HOME/vatro or ~/.local/state/vatro, %LOCALAPPDATA%\vatro on
/// Windows. history_posix.cpp and history_windows.cpp have it.
std::filesystem::path StateDirectory();

}  // namespace vatro
