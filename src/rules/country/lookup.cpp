// SPDX-License-Identifier: MIT
#include "country/lookup.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "country/tables.h"
#include "errors.h"
#include "numbers.h"
#include "score/points.h"

namespace vatro {

using namespace literals;

bool gbVisLand = false;
std::int16_t giMult = 0;

namespace {

constexpr std::string_view kEuropeanExceptions = "TA0,TA1,TB0,TB1,TC0,TC1,YM0,YM1,";

int PrefixStart(std::string_view text) {
    if (text.empty()) throw RunTimeError(Failure::InvalidCall);
    return gaPfxStart[static_cast<unsigned char>(text.front())];
}

/// The row of Lande to which a row of RefPfx points: the first whose prefix is not below the wanted one, or the last. There
/// is no test of equality, so a table out of order can give a neighbour: accepted.
LandRec& CountryOf(const PfxRec& prefix) {
    const auto last = static_cast<std::size_t>(CountriesInUse());
    std::size_t j = 1;
    while (j < last && prefix.Land.Padded() > Lande[j].Pfx.Padded()) ++j;
    return Lande[j];
}

/// The country of a call, or nothing. `prefixText` becomes the text that was looked up as a prefix, where it came so far.
LandRec* FindCountry(std::string_view call, std::string& prefixText) {
    prefixText.clear();
    int row = FindWholeCall(call, PrefixStart(call));
    if (row == 0) {
        findPfxCall(call, prefixText);
        if (prefixText.empty()) return nullptr;
        row = FindPrefix(prefixText, PrefixStart(prefixText));
    }
    return row == 0 ? nullptr : &CountryOf(RefPfx[static_cast<std::size_t>(row)]);
}

}  // namespace

void LandWkd(std::string_view call, std::string& result, MarkAction action) {
    result.clear();
    std::string prefixText;
    LandRec* const country = FindCountry(call, prefixText);
    if (country == nullptr) return;

    if (country->Kontinent.Padded() != "EU") {
        const std::string area = std::string(call.substr(0, 3)) + ",";
        if (kEuropeanExceptions.find(area) == std::string_view::npos) giQSOPoint = 6;
    }

    switch (action) {
        case MarkAction::Unmark:
            if (!country->Wkd) return;
            giMult = ToInt16(giMult - 1);
            country->Wkd = false;
            break;
        case MarkAction::Test:
            if (country->Wkd) return;
            break;
        case MarkAction::Mark:
            if (country->Wkd) return;
            giMult = ToInt16(giMult + 1);
            country->Wkd = true;
            break;
    }
    result = country->Pfx.Padded();
}

void LandStatusTekst(std::string_view call, std::string& text) {
    if (!gbVisLand) return;
    std::string prefixText;
    const LandRec* const country = FindCountry(call, prefixText);
    text.clear();
    if (country == nullptr) {
        // A single character is no prefix yet.
        if (prefixText.size() < 2) return;
        text = Trim(prefixText);
        text += ": er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!"_t;
        return;
    }
    text.append(country->Pfx.Trimmed()).append(": ").append(country->Navn.Trimmed());
    text.append(" (").append(country->Kontinent.Padded());
    text.append(country->Wkd ? "), er kørt."_t : "), er nyt land."_t);
}

bool IsUnknown(std::string_view statusText) {
    return statusText.find("ukendt") != std::string_view::npos;
}

}  // namespace vatro
