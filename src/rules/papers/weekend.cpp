// SPDX-License-Identifier: MIT
#include "papers/weekend.h"

#include "platform.h"

namespace vatro {

DateTime gdFirstDay;
DateTime gdSecondDay;
std::string gsFirstDay;
std::string gsSecondDay;

namespace {

constexpr int kLørdag = 5;

DateTime NæsteDag(const DateTime& dag) {
    return AddHours(dag, 24);
}

DateTime GennemTekst(const DateTime& dag) {
    return ParseDate(FormatDate(dag)).value_or(dag);
}

}  // namespace

void Find1Weekend() {
    DateTime lørdag;
    lørdag.year = platform().clock.Now().year;
    lørdag.month = 8;
    lørdag.day = 31;
    do {
        lørdag = NæsteDag(lørdag);
    } while (Weekday(lørdag) != kLørdag);
    const DateTime søndag = NæsteDag(lørdag);

    gdFirstDay = GennemTekst(lørdag);
    gsFirstDay = FormatDate(lørdag, "yyyy-mm-dd");
    gdSecondDay = GennemTekst(søndag);
    gsSecondDay = FormatDate(søndag, "yyyy-mm-dd");
}

}  // namespace vatro
