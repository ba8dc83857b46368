// SPDX-License-Identifier: MIT
//
// The checks of the single fields of a contact, with their messages. Each says whether the field is good; the message has
// been shown if it is not, and the caller puts the focus where the fault is.
#pragma once

#include <string>
#include <string_view>

#include "controls.h"

namespace vatro {

/// The operator's call must not be blank.
bool CheckOperator(std::string_view operatorCall);

/// The time: five characters of which the middle one becomes ":", a time of day. `field` is rewritten, `time` becomes "Hh:Nn".
bool CheckTime(TextBox& field, std::string& time);

/// Whether a call has both figures and letters. Letters go by character code, so that Æ and Ø, which lie above Å, are none.
bool HasDigitsAndLetters(std::string_view call);

/// The base call: three characters, figures and letters; a nought as first character must be confirmed.
bool CheckCall(std::string_view call);

/// A report: as many figures as the log mode has, 1-5, 1-9 and in CW 1-9. The messages say "Modtaget" for both reports.
bool CheckReport(std::string_view report);

/// Reports and numbers of a contact, in the order of the fields 2 to 5, with their messages. Gives the field at fault, -1 if
/// all are good.
int CheckReports(TextBox (&fields)[6]);

/// A received number: nought must be confirmed and then becomes "0000"; it must be numeric.
bool CheckReceivedNumber(TextBox& field);

}  // namespace vatro
