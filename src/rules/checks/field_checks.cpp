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

bool Fejl(std::string_view besked) {
    MsgBox(besked);
    return false;
}

bool Bekræft(std::string_view spørgsmål, std::string_view titel) {
    MessageBox box;
    box.text = spørgsmål;
    box.title = titel;
    box.buttons = Buttons::YesNo;
    box.defaultNo = true;
    return MsgBox(box) == Answer::Yes;
}

bool EtAf(char c, std::string_view tegn) {
    return tegn.find(c) != std::string_view::npos;
}

bool ErBogstav(char c) {
    const auto kode = static_cast<unsigned char>(Upper(c));
    return kode >= 'A' && kode <= static_cast<unsigned char>("Å"_t[0]);
}

}  // namespace

bool TjekOperatør(std::string_view operatør) {
    return !Trim(operatør).empty() || Fejl("Operatørcall skal angives"_t);
}

bool TjekTid(TextBox& felt, std::string& tid) {
    if (felt.Text().size() == 5) {
        const std::string tekst = felt.Text();
        felt.SetText(tekst.substr(0, 2) + ":" + tekst.substr(3, 2));
        if (const auto klokken = ParseTime(felt.Text())) {
            tid = FormatTime(klokken->hour, klokken->minute);
            return true;
        }
    }
    return Fejl("Indtast tid i formatet: " + NuUTCTid());
}

bool HarTalOgBogstaver(std::string_view call) {
    const bool ciffer = std::any_of(call.begin(), call.end(), [](char c) { return c >= '0' && c <= '9'; });
    return ciffer && std::any_of(call.begin(), call.end(), ErBogstav);
}

bool TjekKaldesignal(std::string_view call) {
    if (call.size() < 3) return Fejl("Et kaldesignal skal være på mindst 3 tegn"_t);
    if (!HarTalOgBogstaver(call)) return Fejl("Der skal være både tal og bogstaver i et kaldesignal"_t);
    return call.front() != '0' || Bekræft("Skal det være et nul?"_t, "Første tegn i call'et er et nul."_t);
}

bool TjekRst(std::string_view rst) {
    const bool cw = gsMode == "CW";
    if (cw && rst.size() != 3) return Fejl("Modtaget RST skal være på 3 cifre."_t);
    if (!cw && rst.size() != 2) return Fejl("Modtaget RST skal være på 2 cifre."_t);
    if (!EtAf(rst[0], "12345")) return Fejl("Første ciffer i RST skal være mellem 1 og 5."_t);
    if (!EtAf(rst[1], "123456789")) return Fejl("Andet ciffer i RST skal være mellem 1 og 9."_t);
    if (cw && !EtAf(rst[2], "123456789")) return Fejl("Sidste ciffer i RST skal være mellem 1 og 9."_t);
    return true;
}

int TjekRapporter(TextBox (&felter)[6]) {
    if (!TjekRst(felter[2].Text())) return 2;
    if (!IsNumeric(felter[3].Text())) {
        MsgBox("Sendt rapport skal være numerisk"_t);
        return 3;
    }
    if (!TjekRst(felter[4].Text())) return 4;
    return TjekModtagetNr(felter[5]) ? -1 : 5;
}

bool TjekModtagetNr(TextBox& felt) {
    if (felt.Text().empty() || NumericValue(felt.Text()) == 0) {
        if (!Bekræft("Skal modtaget rapportnummer være nul?"_t, "Modtaget rapport"_t)) return false;
        felt.SetText("0000");
    }
    return IsNumeric(felt.Text()) || Fejl("Modtaget rapport skal være numerisk"_t);
}

}  // namespace vatro
