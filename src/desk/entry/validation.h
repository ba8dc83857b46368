// SPDX-License-Identifier: MIT
//
// From the entry form to the log: the checks in their fixed order, the line on disk, in the log and in the counters, and
// the form made ready for the next contact.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Checks the entry and logs it. Stops at the first fault with a message and the focus on the field at fault. A band or
/// mode word in the call field changes band or mode instead.
void ValiderQSO();

/// What an accepted contact is worth, by its call as logged: marks its country as worked, and the society's station that the first six
/// characters of `station` name, and sets giQSOPoint. Gives the contact's multiplier. An empty call has no country. A
/// duplicate (gbDupe) has no points and the multiplier "-DUPE-"; its country stays marked and counted all the same.
std::string RateContact(std::string_view call, std::string_view station);
/// The line of the contact goes to file and log, giQSOPoint to the counters and the status bar.
void RecordContact(const std::string& line);

/// The caption of the status bar for a duplicate.
inline constexpr std::string_view kDupeWarning = "* DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * ";

}  // namespace vatro
