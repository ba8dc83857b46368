// SPDX-License-Identifier: MIT
//
// Reads and writes files as a whole.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace vatro {

/// Reads all bytes of the file. A failed read is retried, because the cause may be a loose cable. Fails with the disk's failure if the
/// file cannot be opened, with 71 if it cannot be read to its end, and with 75 if the path is not a regular file.
std::string ReadWhole(const std::filesystem::path& file);

/// Like ReadWhole, but returns what could be read before a failure, and whether that is all.
struct ReadResult {
    std::string content;
    bool whole = false;
};
ReadResult ReadWhatIsThere(const std::filesystem::path& file);

/// Writes the file completely or not at all: writes it under another name, syncs it, then renames it. It is on disk on return. If it
/// replaces a file, it takes over that file's owner and permissions.
void WriteWhole(const std::filesystem::path& file, std::string_view content);

/// The length of the file in bytes; 0 if it is missing.
std::size_t SizeOf(const std::filesystem::path& file);

/// Whether the path exists but is not a regular file: a pipe, a device or a directory. Opening such a thing could block for ever.
bool IsNoFile(const std::filesystem::path& path);

}  // namespace vatro
