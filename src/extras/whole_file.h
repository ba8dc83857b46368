// SPDX-License-Identifier: MIT
//
// Files read and written in one piece.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vatro {

/// All bytes of the file. A read that fails is tried again: the cable of a disk may have been touched. Fails with what the disk
/// says in the end, and with 75 if it is no regular file.
std::string ReadWhole(const std::filesystem::path& file);

/// As ReadWhole, but gives what could be read before the failure, and whether that is all.
struct ReadResult {
    std::string content;
    bool whole = false;
};
ReadResult ReadWhatIsThere(const std::filesystem::path& file);

/// Writes the file whole or not at all: under another name first, synced, then renamed. It is on the disk on return, with
/// the owner and the rights of a file that it replaces.
void WriteWhole(const std::filesystem::path& file, std::string_view content);

/// Whether something has this name that is no regular file: a pipe, a device or a directory, which may never answer.
bool IsNoFile(const std::filesystem::path& path);

}  // namespace vatro
