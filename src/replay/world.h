// SPDX-License-Identifier: MIT
//
// The directories of a scenario: data, log, backup and floppy, where floppy is drive a:.
//
// A path of the scenario or program starts with one of these names or with another directory of the world. A path of one component
// lies in the current directory, which is data. Each other drive letter is a directory of its own, created when first used.
// Separators are slashes or backslashes, case is ignored, and no path leads out of the world.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// The directories on the real disk. Paths passed in are text of the code page.
class World {
public:
    /// A new temporary directory, removed at the end.
    World();
    /// An existing directory with its content; it is kept at the end.
    explicit World(std::filesystem::path directory);
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    static constexpr char kSeparator = '\\';
    static constexpr std::string_view kCurrentDirectory = "data";

    /// Where a path in the code page leads on the disk, spelled as given.
    std::filesystem::path Path(std::string_view path) const;
    /// Like Path, but spelled as on the disk.
    std::filesystem::path Found(std::string_view path) const;
    /// The settings file, for a world that is kept.
    std::optional<std::filesystem::path> SettingsFile() const;

    /// Writes a file, creating missing directories. Returns false if the disk refuses.
    bool Write(std::string_view path, std::string_view content) const;
    /// The content of the file, or nothing if it does not exist.
    std::optional<std::string> Read(std::string_view path) const;
    /// Removes a file, or a directory with everything in it. Does nothing if it does not exist.
    void Remove(std::string_view path) const;
    /// The names in a directory, in the code page, sorted by character code. Nothing if the directory does not exist.
    std::optional<std::vector<std::string>> List(std::string_view path) const;

private:
    void CreateDirectories() const;

    std::filesystem::path root_;
    bool stays_;
};

}  // namespace vatro
