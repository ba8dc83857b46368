// SPDX-License-Identifier: MIT
//
// From the program's paths to the disk's: names without regard to case, and drive a:.
//
// The program's paths are text of the code page with slashes or backslashes between their components. The logs carry
// names of a system that knows no case, so a file is found however it is spelled.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// The file system's path of a path of the program. "a:" in front is the first removable volume mounted for the user;
/// fails with 76 if there is none. Windows has a drive of that name.
std::filesystem::path NativePath(std::string_view path);

/// The text of a path of the file system; "?" stands for a character that is not in the code page.
std::string NativeText(const std::filesystem::path& path);

/// The path of the file system that is spelled like this in the code page, or in UTF-8.
std::filesystem::path PathOf(std::string_view text);
std::filesystem::path PathOfUtf8(std::string_view utf8);

/// Where a path leads when case does not count.
struct FoundPath {
    /// As spelled on the disk, as far as it exists.
    std::filesystem::path path;
    bool exists = false;
    bool directoryExists = false;
};

/// Finds each component as spelled or else, without regard to case, the first by name that is there. A character of
/// a name that is not in the code page is met by the "?" that stands for it in the program.
FoundPath FindPath(const std::filesystem::path& spelled);

/// The entry of the directory that the system itself finds under this name, as spelled on the disk. names_posix.cpp and
/// names_windows.cpp have it, and NativePath.
std::optional<std::filesystem::path> SystemsEntry(const std::filesystem::path& directory, const std::filesystem::path& name);

}  // namespace vatro
