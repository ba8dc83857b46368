// SPDX-License-Identifier: MIT
//
// The checks of the single fields of a contact. A check returns nothing for a good field, otherwise the message or question for the
// operator, who may confirm some oddities and must correct the other faults.
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
    /// Whether the text is a question, which the operator answers with Yes to keep the field as it is. No is the default button, so
    /// that an accidental key press keeps nothing.
    bool isQuestion = false;
};

/// Checks the operator's call: it must not be blank.
std::optional<Objection> CheckOperator(std::string_view operatorCall);

/// Puts ":" in the middle of a time of five characters, replacing whatever is there; nothing for any other length.
std::optional<std::string> WithColon(std::string_view time);
/// Returns "Hh:Nn" for a text from WithColon that is a time of day; nothing if it is not.
std::optional<std::string> CheckTime(std::string_view time);

/// Whether a call has both figures and letters. Letters are tested by character code; Æ and Ø, whose codes lie above that of Å, do
/// not count as letters.
bool HasDigitsAndLetters(std::string_view call);

/// Checks a base call: it must have at least three characters, with figures and letters among them. A nought as first character must
/// be confirmed.
std::optional<Objection> CheckCall(std::string_view call);

/// Checks a report: as many figures as the log mode asks for, the first 1-5, the second 1-9, and in CW a third, 1-9. The messages say
/// "Modtaget" (received) for both reports.
std::optional<Objection> CheckReport(std::string_view report, std::string_view logMode);

/// Checks the number sent: it must be numeric.
std::optional<Objection> CheckNumberSent(std::string_view number);

/// Checks whether the number received is missing or nought. That must be confirmed; the caller then makes it "0000".
std::optional<Objection> CheckZeroNumber(std::string_view number);
inline constexpr std::string_view kZeroNumber = "0000";
/// Checks the number received: it must be numeric.
std::optional<Objection> CheckNumberReceived(std::string_view number);

}  // namespace vatro
