// SPDX-License-Identifier: MIT
//
// Prepares the entry form for the next contact, and changes band or mode, which ends with the same step.
#pragma once

namespace vatro {

/// Prepares the form for the next contact: moves the serial number (giQSOnr) on by one, although the name only says "reset", sets
/// default reports and clears the call. Also runs after every load of a log, so that each log continues its own numbers.
void ResetQSO();

/// Changes band or mode: applies the choice, loads the log that is now the current one, clears the entry and asks whether the operator
/// stays the same. It does not ask first, and it does all this even if the choice is the current one, so a half-typed contact is lost.
/// Keep this: when many stations call at once, operators change the band with a single key (docs/rules.md).
void ChangeBandMode(int index);

}  // namespace vatro
