// SPDX-License-Identifier: MIT
//
// Takes a contact from the entry form into the log: runs the checks in their fixed order, writes the line to the file and to the log in
// memory, updates the counters, and prepares the form for the next contact.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Checks the entry and logs it; the name only says "validate". At the first fault shows a message and moves the focus to the field
/// at fault. A band or mode word in the call field changes band or mode instead.
void ValiderQSO();

/// Rates an accepted contact by its call as logged: marks its country as worked, and the society's station named by the first six
/// characters of `station`, and sets giQSOPoint. Returns the multiplier. An empty call has no country. A duplicate (gbDupe) has no points
/// and the multiplier "-DUPE-"; its country is marked and counted nevertheless. Do not correct this: line and status bar would differ
/// from another copy of the program (docs/rules.md).
std::string RateContact(std::string_view call, std::string_view station);
/// Appends the line of the contact to file and log, and adds giQSOPoint to the counters and the status bar.
void RecordContact(const std::string& line);

/// The text of the status bar for a duplicate.
inline constexpr std::string_view kDupeWarning = "* DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * ";

}  // namespace vatro
