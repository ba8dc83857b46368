// SPDX-License-Identifier: MIT
#include "checks/field_checks.h"

#include <algorithm>

#include "codepage.h"
#include "columns.h"
#include "datetime.h"
#include "errors.h"
#include "frame/band_mode.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

bool Refuse(std::string_view message) {
    MsgBox(message);
    return false;
}

bool Confirm(std::string_view question, std::string_view title) {
    MessageBox box;
    box.text = question;
    box.title = title;
    box.buttons = Buttons::YesNo;
    box.defaultNo = true;
    return MsgBox(box) == Answer::Yes;
}

bool IsOneOf(char c, std::string_view characters) {
    return characters.find(c) != std::string_view::npos;
}

bool IsLetter(char c) {
    const auto code = static_cast<unsigned char>(Upper(c));
    return code >= 'A' && code <= static_cast<unsigned char>("Å"_t[0]);
}

}  // namespace

bool CheckOperator(std::string_view operatorCall) {
    return !Trim(operatorCall).empty() || Refuse("Operatørcall skal angives"_t);
}

bool CheckTime(TextBox& field, std::string& time) {
    if (field.Text().size() == 5) {
        const std::string text = field.Text();
        field.SetText(text.substr(0, 2) + ":" + text.substr(3, 2));
        if (const auto timeOfDay = ParseTime(field.Text())) {
            time = FormatTime(timeOfDay->hour, timeOfDay->minute);
            return true;
        }
    }
    return Refuse("Indtast tid i formatet: " + UtcTimeText());
}

bool HasDigitsAndLetters(std::string_view call) {
    const bool digit = std::any_of(call.begin(), call.end(), [](char c) { return c >= '0' && c <= '9'; });
    return digit && std::any_of(call.begin(), call.end(), IsLetter);
}

bool CheckCall(std::string_view call) {
    if (call.size() < 3) return Refuse("Et kaldesignal skal være på mindst 3 tegn"_t);
    if (!HasDigitsAndLetters(call)) return Refuse("Der skal være både tal og bogstaver i et kaldesignal"_t);
    return call.front() != '0' || Confirm("Skal det være et nul?"_t, "Første tegn i call'et er et nul."_t);
}

bool CheckReport(std::string_view report) {
    const bool cw = gsMode == "CW";
    if (cw && report.size() != 3) return Refuse("Modtaget RST skal være på 3 cifre."_t);
    if (!cw && report.size() != 2) return Refuse("Modtaget RST skal være på 2 cifre."_t);
    if (!IsOneOf(report[0], "12345")) return Refuse("Første ciffer i RST skal være mellem 1 og 5."_t);
    if (!IsOneOf(report[1], "123456789")) return Refuse("Andet ciffer i RST skal være mellem 1 og 9."_t);
    if (cw && !IsOneOf(report[2], "123456789")) return Refuse("Sidste ciffer i RST skal være mellem 1 og 9."_t);
    return true;
}

int CheckReports(TextBox (&fields)[6]) {
    if (!CheckReport(fields[2].Text())) return 2;
    if (!IsNumeric(fields[3].Text())) {
        MsgBox("Sendt rapport skal være numerisk"_t);
        return 3;
    }
    if (!CheckReport(fields[4].Text())) return 4;
    return CheckReceivedNumber(fields[5]) ? -1 : 5;
}

bool CheckReceivedNumber(TextBox& field) {
    if (field.Text().empty() || NumericValue(field.Text()) == 0) {
        if (!Confirm("Skal modtaget rapportnummer være nul?"_t, "Modtaget rapport"_t)) return false;
        field.SetText("0000");
    }
    return IsNumeric(field.Text()) || Refuse("Modtaget rapport skal være numerisk"_t);
}

}  // namespace vatro
