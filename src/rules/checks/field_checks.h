// SPDX-License-Identifier: MIT
//
// Checks of single fields of a contact. A check returns nothing for a good field, otherwise a message or a question for the operator. The
// operator may answer a question with Yes and keep the field; after a message the field must be corrected.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// The message or question about a faulty field.
struct Objection {
    std::string_view text;
    /// The title of the box; set for questions only.
    std::string_view title = {};
    /// Whether the text is a question, which the operator answers with Yes to keep the field as it is. No is the default button, so that
    /// an accidental key press does not keep a faulty field.
    bool isQuestion = false;
};

/// Checks the operator's call: it must not be blank.
std::optional<Objection> CheckOperator(std::string_view operatorCall);

/// Returns a time of five characters with ":" as its third character, whatever was there; nothing for any other length.
std::optional<std::string> WithColon(std::string_view time);
/// Returns a text from WithColon as "Hh:Nn"; nothing if it is not a time of day.
std::optional<std::string> CheckTime(std::string_view time);

/// Whether a call has both digits and letters. Every character whose code lies between those of A and Å counts as a letter, ignoring
/// case, so Æ and Ø do not count. Keep this: no real call depends on it, and the entry and the error list must agree (docs/rules.md).
bool HasDigitsAndLetters(std::string_view call);

/// Checks a base call: it must have at least three characters, with digits and letters among them. A zero as first character must be
/// confirmed.
std::optional<Objection> CheckCall(std::string_view call);

/// Checks a report: it must have two digits, in a CW log three, the first 1-5 and the others 1-9. The messages say "Modtaget" (received)
/// about the report sent too. Keep them: operators know them, and the handbook quotes them (docs/rules.md).
std::optional<Objection> CheckReport(std::string_view report, std::string_view logMode);

/// Checks the number sent: it must be numeric.
std::optional<Objection> CheckNumberSent(std::string_view number);

/// Checks whether the number received is missing or zero. The operator must confirm that; the caller then sets the number to "0000".
std::optional<Objection> CheckZeroNumber(std::string_view number);
inline constexpr std::string_view kZeroNumber = "0000";
/// Checks the number received: it must be numeric.
std::optional<Objection> CheckNumberReceived(std::string_view number);

}  // namespace vatro
