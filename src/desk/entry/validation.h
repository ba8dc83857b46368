// SPDX-License-Identifier: MIT
//
// From the entry form to the log: the checks in their fixed order, the line on disk, in the list and in the counters, and
// the form made ready for the next contact.
#pragma once

#include <string>
#include <string_view>

#include "log/contact_line.h"

namespace vatro {

/// Checks the entry and logs it. Stops at the first fault with a message and the focus on the field at fault. A band or
/// mode word in the call field changes band or mode instead.
void ValiderQSO();

/// What an accepted contact is worth, by its call as logged: marks its country as worked, and the society's station of the call
/// `baseCall`, which is cut to six characters, and sets giQSOPoint and the contact's multiplier and points. An empty call has no country. A
/// duplicate has no points and "-DUPE-"; its country stays marked and counted all the same.
void RateContact(Contact& contact, std::string& baseCall);
/// The line of the contact goes to file and list, giQSOPoint to the counters and the status bar.
void RecordContact(const std::string& line);

/// Makes the form ready for the next contact: the next serial number, default reports, an empty call. Also after every
/// load of a log, so that each log goes on with its own numbers.
void ResetQSO();

/// The default report of the current QSO mode: "599", "59" for SSB, empty for anything else.
std::string_view StandardRST();

/// The caption of the status bar for a duplicate.
extern const std::string_view kDupeWarning;

}  // namespace vatro
