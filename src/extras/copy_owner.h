// SPDX-License-Identifier: MIT
//
// Finds the log that an "FDkopi.txt" belongs to. An interrupted rewrite leaves this file, and its name does not say which log it is a
// copy of.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// The owner of a copy.
struct CopyOwner {
    /// Nothing if no log in the directory shares a contact with the copy.
    std::optional<std::filesystem::path> log;
    /// The content of that log.
    std::string content;
};

/// The log in the directory that shares the most contacts with the lines of a copy. Logs that cannot be read are skipped.
CopyOwner OwnerOf(const std::vector<std::string_view>& lines, const std::filesystem::path& directory);

/// How many contacts of `lines` also occur in `others` as identical lines.
std::size_t SharedContacts(const std::vector<std::string_view>& lines, const std::vector<std::string_view>& others);

}  // namespace vatro
