// SPDX-License-Identifier: MIT
//
// Converts the program's paths to paths of the file system, including case-insensitive names and drive a:.
//
// The program's paths are text of the code page, with slashes or backslashes as separators. Names in the logs come from a system
// that ignores case, so a file is found regardless of case.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// Converts a path of the program to a path of the file system. A leading "a:" stands for the first removable volume that is
/// mounted for the user; fails with 76 if there is none. On Windows it is the drive of that name.
std::filesystem::path NativePath(std::string_view path);

/// Converts a path of the file system to text; a character outside the code page becomes "?".
std::string NativeText(const std::filesystem::path& path);

/// The same for the operator, with the separators of the system.
std::string ShownPath(const std::filesystem::path& path);

/// Converts text in the code page, or in UTF-8 (PathOfUtf8), to a path of the file system with the same spelling.
std::filesystem::path PathOf(std::string_view text);
std::filesystem::path PathOfUtf8(std::string_view utf8);

/// The result of looking up a path without regard to case.
struct FoundPath {
    /// The part that exists is spelled as on the disk.
    std::filesystem::path path;
    bool exists = false;
    bool directoryExists = false;
};

/// Looks up each component of the path: first exactly as spelled, then ignoring case, where the first match by name wins. A "?" in
/// a component matches a character outside the code page, because that is how the program sees such characters.
FoundPath FindPath(const std::filesystem::path& spelled);

/// The entry of the directory that the operating system itself finds under this name, spelled as on the disk. Defined, like
/// NativePath, in names_posix.cpp and names_windows.cpp.
std::optional<std::filesystem::path> SystemsEntry(const std::filesystem::path& directory, const std::filesystem::path& name);

}  // namespace vatro
