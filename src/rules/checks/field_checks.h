// SPDX-License-Identifier: MIT
//
// What is right in the single fields of a contact. A check gives nothing for a good field; otherwise what is to be said of it to the
// operator, who may confirm some oddities and must mend the rest.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// What a check has against a field.
struct Objection {
    std::string_view text;
    /// Of a question.
    std::string_view title = {};
    /// The operator may confirm that the field is meant as it stands; No is the answer of a tired finger.
    bool isQuestion = false;
};

/// The operator's call must not be blank.
std::optional<Objection> CheckOperator(std::string_view operatorCall);

/// A time of five characters with ":" in the middle, whatever stands there; nothing for another length.
std::optional<std::string> WithColon(std::string_view time);
/// "Hh:Nn" of a time of day as WithColon gives it; nothing if it is none.
std::optional<std::string> CheckTime(std::string_view time);

/// Whether a call has both figures and letters. Letters go by character code, so that Æ and Ø, which lie above Å, are none.
bool HasDigitsAndLetters(std::string_view call);

/// The base call: three characters, figures and letters; a nought as first character must be confirmed.
std::optional<Objection> CheckCall(std::string_view call);

/// A report: as many figures as the log mode has, 1-5, 1-9 and in CW 1-9. The messages say "Modtaget" for both reports.
std::optional<Objection> CheckReport(std::string_view report, std::string_view logMode);

/// The number sent must be numeric.
std::optional<Objection> CheckNumberSent(std::string_view number);

/// A number received that is nought, or missing, must be confirmed; it then becomes "0000".
std::optional<Objection> CheckZeroNumber(std::string_view number);
inline constexpr std::string_view kZeroNumber = "0000";
/// It must be numeric.
std::optional<Objection> CheckNumberReceived(std::string_view number);

}  // namespace vatro
