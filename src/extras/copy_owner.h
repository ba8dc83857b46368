// SPDX-License-Identifier: MIT
//
// Whose copy an "FDkopi.txt" is: its name does not tell of which log an interrupted rewrite has left it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

struct CopyOwner {
    /// Nothing if no log of the directory shares a contact with the copy.
    std::optional<std::filesystem::path> log;
    /// Of the log.
    std::string content;
};

/// The log of the directory that shares most contacts with the lines of a copy. Logs that cannot be read do not count.
CopyOwner OwnerOf(const std::vector<std::string_view>& lines, const std::filesystem::path& directory);

/// How many contacts of `lines` are among `others`, whole.
std::size_t SharedContacts(const std::vector<std::string_view>& lines, const std::vector<std::string_view>& others);

}  // namespace vatro
