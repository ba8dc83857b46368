// SPDX-License-Identifier: MIT
#include "log/contact_line.h"

#include "codepage.h"
#include "numbers.h"

namespace vatro {

bool ErNote(std::string_view tekst) {
    return EqualNoCase(tekst.substr(0, kNoteMærke.size()), kNoteMærke);
}

std::string QsoLine(const Qso& qso, std::string_view logMode) {
    const std::string_view rapportBlank = logMode == "SSB" ? " " : "";
    std::string linje;
    linje.reserve(80);
    linje.append(qso.tid).append(" ");
    linje.append(LeftAligned(qso.call, kCall.bredde)).append(" ");
    linje.append(qso.rstSendt).append(rapportBlank);
    linje.append("-").append(ZeroPadded(qso.nrSendt, 4)).append(" ");
    linje.append(qso.rstModtaget).append(rapportBlank);
    linje.append("-").append(ZeroPadded(qso.nrModtaget, 4)).append(" ");
    if (qso.point < 10) linje.append(" ");
    linje.append(PlainNumber(qso.point)).append(" ");
    linje.append(LeftAligned(qso.multiplier, kMultiplier.bredde)).append(" ");
    linje.append(LeftAligned(qso.operatør, kOperatør.bredde)).append(" ");
    linje.append(qso.qsl ? "QSL" : "   ").append(" ");
    linje.append(LeftAligned(qso.qsoMode, kQsoMode.bredde)).append(" ");
    linje.append(qso.dato);
    return linje;
}

}  // namespace vatro
