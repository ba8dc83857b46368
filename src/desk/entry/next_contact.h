// SPDX-License-Identifier: MIT
//
// The entry form made ready for the next contact, and the change of band or mode, which ends with that.
#pragma once

namespace vatro {

/// Makes the form ready for the next contact: the next serial number, default reports, an empty call. Also after every
/// load of a log, so that each log goes on with its own numbers.
void ResetQSO();

/// The whole change of band or mode: takes the choice over, loads the log that now is the current one, clears the entry and asks whether
/// the operator stays the same. Does not ask before and does not test whether the choice differs.
void ChangeBandMode(int index);

}  // namespace vatro
