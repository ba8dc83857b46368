// SPDX-License-Identifier: MIT
//
// The directories in which a scenario plays: data, log, backup and floppy, which is drive a:.
//
// A path of the scenario or of the program begins with one of these names or with another directory of the world; a
// path of one component lies in the current directory, data. A drive letter is a directory of its own, created when it
// is first used. Separators are slashes or backslashes, case does not count, and no path leads out of the world.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

class World {
public:
    /// An empty temporary directory, removed at the end.
    World();
    /// This directory with what is in it; it stays at the end.
    explicit World(std::filesystem::path directory);
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    static constexpr char kSeparator = '\\';
    static constexpr std::string_view kCurrentDirectory = "data";

    /// Where a path of the code page leads on the disk, as spelled.
    std::filesystem::path Path(std::string_view path) const;
    /// As Path, with names spelled as they are on the disk.
    std::filesystem::path Found(std::string_view path) const;
    /// Where the settings are kept, in a world that stays.
    std::optional<std::filesystem::path> SettingsFile() const;

    /// Creates the directories that are missing. False if the disk refuses.
    bool Write(std::string_view path, std::string_view content) const;
    /// Nothing if there is no such file.
    std::optional<std::string> Read(std::string_view path) const;
    /// A file, or a directory with all that is in it, if it is there.
    void Remove(std::string_view path) const;
    /// The names in a directory, in the code page, sorted by character code; nothing if it is missing.
    std::optional<std::vector<std::string>> List(std::string_view path) const;

private:
    void CreateDirectories() const;

    std::filesystem::path root_;
    bool stays_;
};

}  // namespace vatro
