// SPDX-License-Identifier: MIT
//
// The six text fields of a contact, which entry and correction have alike: their order, lengths and keys.
#pragma once

#include <functional>

#include "controls.h"

namespace vatro {

/// Indices of the fields, in entry and correction alike.
enum ContactField { kUtcField, kCallField, kReportSentField, kNumberSentField, kReportReceivedField, kNumberReceivedField, kFieldCount };

using ContactFields = TextBox[kFieldCount];

/// Sets the length limits of the fields.
void SetFieldLengths(ContactFields& fields);

/// A key in one of the fields. Enter runs `enter`; Esc empties call and received number together, or the field alone; Space jumps
/// between call and received number. A key that has done something becomes nothing.
void HandleFieldKey(ContactFields& fields, int Index, KeyCode& KeyAscii, const std::function<void()>& enter);

/// What a key becomes in one of the fields: time, call and received number take only their own characters, the call in upper
/// case; no field takes a blank.
void FilterFieldKey(int Index, KeyCode& KeyAscii);

}  // namespace vatro
