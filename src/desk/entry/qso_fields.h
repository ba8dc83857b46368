// SPDX-License-Identifier: MIT
//
// The six text fields of a contact: their order, lengths and keys. Entry and correction share them.
#pragma once

#include <functional>

#include "controls.h"

namespace vatro {

/// Indices of the fields, the same in entry and correction.
enum ContactField { kUtcField, kCallField, kReportSentField, kNumberSentField, kReportReceivedField, kNumberReceivedField, kFieldCount };

using ContactFields = TextBox[kFieldCount];

/// Sets the length limits of the fields.
void SetFieldLengths(ContactFields& fields);

/// Handles a key in one of the fields. Enter runs `enter`. Esc empties the field; in the call and in the received number it empties both
/// and moves to the call. The number sent is never emptied. Space jumps between call and received number. A key that has been handled is
/// set to kNoKey.
void HandleFieldKey(ContactFields& fields, int Index, KeyCode& KeyAscii, const std::function<void()>& enter);

/// Filters a key in one of the fields: time, call and received number accept only their own characters, and the call is converted to
/// upper case. No field accepts a blank.
void FilterFieldKey(int Index, KeyCode& KeyAscii);

}  // namespace vatro
