// SPDX-License-Identifier: MIT
//
// Searches of a log while a contact is entered or corrected: is the station logged already, and which earlier contacts hold
// what has been typed so far. All are plain scans of the lines from the first one.
//
// Each skips a line by looking at the line before it, where a note would be expected to be skipped itself. So a note whose
// text looks like a call counts as a contact. Logs of many contests were made by these searches; another search would find
// other duplicates in them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// Whether a line holds the station: its call, reduced to the base call, is the base call given, by exact comparison. Behind a
/// note whose text itself begins with "NOTE: " nothing is found.
bool CheckDupe(std::span<const std::string> lines, std::string_view baseCall);

/// The same for a contact under correction, among the lines above it. A note that begins with the call counts as a contact.
bool CheckDupQSO(std::span<const std::string> above, std::string_view baseCall);

/// The earlier contacts whose call contains the text, without regard to case; at most 50, the oldest first, as the operator is
/// shown them:
///
///    1-15  call                21-24  serial number received
///   16-19  serial number sent  26-30  UTC
///   20     "/"
std::vector<std::string> WkdB4(std::string_view text, std::span<const std::string> lines);

}  // namespace vatro
