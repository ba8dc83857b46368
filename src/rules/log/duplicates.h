// SPDX-License-Identifier: MIT
//
// Searches of a log while a contact is entered or corrected: whether the station is logged already, and in which earlier contacts the
// call contains what has been typed so far. Their results are those of a scan of the lines from the first to the last.
//
// Each search decides whether to skip a line by looking at the previous line, not at the line itself. A note is therefore not
// skipped, and a note whose text looks like a call counts as a contact. A note whose own text begins with "NOTE: " is the last line that
// is searched. Do not correct this: in a log of an earlier contest a correction would turn a duplicate into a valid contact, or the other
// way round, although its call stays the same (docs/rules.md).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "log/log.h"

namespace vatro {

/// Whether the log has a contact with this station: a line whose call, reduced to the base call, equals `baseCall` exactly. Lines below a
/// note whose own text, reduced in the same way, begins with "NOTE: " are not searched.
bool CheckDupe(const Log& log, std::string_view baseCall);

/// The same search for a contact under correction, among the `above` lines above it. A note whose text is the call counts as a contact
/// here too. The lines below are left out on purpose: otherwise the earlier of two contacts with a station, which has the points, would
/// become the duplicate (docs/rules.md).
bool CheckDupQSO(const Log& log, std::size_t above, std::string_view baseCall);

/// Returns the earlier contacts whose call contains the text, ignoring case: at most 50, the oldest first, formatted for display. Lines
/// below a note whose own text begins with "NOTE: ", ignoring case, are not searched.
///
///    1-15  call                21-24  serial number received
///   16-19  serial number sent  26-30  UTC
///   20     "/"
std::vector<std::string> WkdB4(std::string_view text, const Log& log);

}  // namespace vatro
