// SPDX-License-Identifier: MIT
//
// Two searches of the current log while a contact is entered: is the station logged already, and which earlier contacts
// hold what has been typed so far. Both are plain scans of the list from its first line.
#pragma once

#include <string>
#include <string_view>

#include "controls.h"

namespace vatro {

/// The call being entered, corrected, imported or checked, reduced to the base call. Set by whoever looks at one, so it has a
/// meaning only until the next.
extern std::string gsCall;
/// The contact of gsCall is a duplicate.
extern bool gbDupe;

/// Sets gbDupe: whether a line of the log holds the station gsCall, both reduced to the base call, by exact comparison.
/// The guard against notes looks at the text of the line before: a note whose text is a call counts as a contact, and
/// behind a note whose text itself begins with "NOTE: " nothing is found. Meant so.
void CheckDupe();

/// Fills `matches` with the earlier contacts whose call contains the field's text, without regard to case; at most 50, the
/// oldest first. The guard against notes is as in CheckDupe.
///
///    1-15  call                21-24  serial number received
///   16-19  serial number sent  26-30  UTC
///   20     "/"
void WkdB4(const TextBox& callField, const ListBox& log, ListBox& matches);

}  // namespace vatro
