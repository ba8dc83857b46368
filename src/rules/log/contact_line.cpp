// SPDX-License-Identifier: MIT
#include "log/contact_line.h"

#include "codepage.h"
#include "numbers.h"

namespace vatro {

bool IsNote(std::string_view text) {
    return EqualNoCase(text.substr(0, kNoteMark.size()), kNoteMark);
}

std::string QsoLine(const Contact& contact, std::string_view logMode) {
    const std::string_view reportPadding = logMode == "SSB" ? " " : "";
    std::string line;
    line.reserve(80);
    line.append(contact.time).append(" ");
    line.append(LeftAligned(contact.call, kCall.width)).append(" ");
    line.append(contact.reportSent).append(reportPadding);
    line.append("-").append(ZeroPadded(contact.numberSent, 4)).append(" ");
    line.append(contact.reportReceived).append(reportPadding);
    line.append("-").append(ZeroPadded(contact.numberReceived, 4)).append(" ");
    if (contact.point < 10) line.append(" ");
    line.append(PlainNumber(contact.point)).append(" ");
    line.append(LeftAligned(contact.multiplier, kMultiplier.width)).append(" ");
    line.append(LeftAligned(contact.operatorCall, kOperator.width)).append(" ");
    line.append(contact.qsl ? "QSL" : "   ").append(" ");
    line.append(LeftAligned(contact.qsoMode, kQsoMode.width)).append(" ");
    line.append(contact.date);
    return line;
}

}  // namespace vatro
