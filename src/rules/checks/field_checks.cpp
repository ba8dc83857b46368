// SPDX-License-Identifier: MIT
#include "checks/field_checks.h"

#include <algorithm>

#include "codepage.h"
#include "columns.h"
#include "datetime.h"
#include "numbers.h"

namespace vatro {

using namespace literals;

namespace {

bool IsOneOf(char c, std::string_view characters) {
    return characters.find(c) != std::string_view::npos;
}

bool IsLetter(char c) {
    const auto code = static_cast<unsigned char>(Upper(c));
    return code >= 'A' && code <= static_cast<unsigned char>("Å"_t[0]);
}

}  // namespace

std::optional<Objection> CheckOperator(std::string_view operatorCall) {
    if (Trim(operatorCall).empty()) return Objection{"Operatørcall skal angives"_t};
    return std::nullopt;
}

std::optional<std::string> WithColon(std::string_view time) {
    if (time.size() != 5) return std::nullopt;
    return std::string(time.substr(0, 2)).append(":").append(time.substr(3, 2));
}

std::optional<std::string> CheckTime(std::string_view time) {
    const auto timeOfDay = ParseTime(time);
    if (!timeOfDay) return std::nullopt;
    return FormatTime(timeOfDay->hour, timeOfDay->minute);
}

bool HasDigitsAndLetters(std::string_view call) {
    const bool digit = std::any_of(call.begin(), call.end(), IsDigit);
    return digit && std::any_of(call.begin(), call.end(), IsLetter);
}

std::optional<Objection> CheckCall(std::string_view call) {
    if (call.size() < 3) return Objection{"Et kaldesignal skal være på mindst 3 tegn"_t};
    if (!HasDigitsAndLetters(call)) return Objection{"Der skal være både tal og bogstaver i et kaldesignal"_t};
    if (call.front() == '0') return Objection{"Skal det være et nul?"_t, "Første tegn i call'et er et nul."_t, true};
    return std::nullopt;
}

std::optional<Objection> CheckReport(std::string_view report, std::string_view logMode) {
    const bool cw = logMode == "CW";
    if (cw && report.size() != 3) return Objection{"Modtaget RST skal være på 3 cifre."_t};
    if (!cw && report.size() != 2) return Objection{"Modtaget RST skal være på 2 cifre."_t};
    if (!IsOneOf(report[0], "12345")) return Objection{"Første ciffer i RST skal være mellem 1 og 5."_t};
    if (!IsOneOf(report[1], "123456789")) return Objection{"Andet ciffer i RST skal være mellem 1 og 9."_t};
    if (cw && !IsOneOf(report[2], "123456789")) return Objection{"Sidste ciffer i RST skal være mellem 1 og 9."_t};
    return std::nullopt;
}

std::optional<Objection> CheckNumberSent(std::string_view number) {
    if (!IsNumeric(number)) return Objection{"Sendt rapport skal være numerisk"_t};
    return std::nullopt;
}

std::optional<Objection> CheckZeroNumber(std::string_view number) {
    if (number.empty() || NumericValue(number) == 0)
        return Objection{"Skal modtaget rapportnummer være nul?"_t, "Modtaget rapport"_t, true};
    return std::nullopt;
}

std::optional<Objection> CheckNumberReceived(std::string_view number) {
    if (!IsNumeric(number)) return Objection{"Modtaget rapport skal være numerisk"_t};
    return std::nullopt;
}

}  // namespace vatro
