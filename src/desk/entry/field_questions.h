// SPDX-License-Identifier: MIT
//
// Checks the fields of a contact and tells the operator what is wrong: shows messages, asks questions, and rewrites the time and the
// number received as they are logged. The caller moves the focus to the field at fault.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "checks/field_checks.h"
#include "controls.h"
#include "entry/qso_fields.h"

namespace vatro {

/// Shows the message or question, if any. Returns whether the field may stay as it is: there is no objection, or the operator has
/// answered Yes.
bool Accepted(const std::optional<Objection>& objection);

/// Returns the time in the field as "Hh:Nn". Puts ":" in the middle of the field. Shows a message and returns nothing if the text is
/// not a time of day.
std::optional<std::string> AcceptedTime(TextBox& field);

/// Checks reports and numbers in the order of the fields. Returns the first field at fault, or nothing. If the operator confirms that the
/// number received is missing or zero, the field becomes "0000".
std::optional<ContactField> FieldAtFault(ContactFields& fields);

}  // namespace vatro
