// SPDX-License-Identifier: MIT
//
// The checks of the fields of a contact with the operator at hand: messages are shown, questions asked, and fields rewritten as they
// are to be logged. The caller puts the focus where the fault is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "checks/field_checks.h"
#include "controls.h"
#include "entry/qso_fields.h"

namespace vatro {

/// Whether the field may stay as it is: there is no objection, or the operator has confirmed it.
bool Accepted(const std::optional<Objection>& objection);

/// The time of the field as "Hh:Nn". The field gets a ":" in its middle. Nothing, after a message, if it is no time of day.
std::optional<std::string> AcceptedTime(TextBox& field);

/// Checks reports and numbers in the order of the fields. Gives the field at fault, if any. A confirmed nought as number received becomes
/// "0000".
std::optional<ContactField> FieldAtFault(ContactFields& fields);

}  // namespace vatro
