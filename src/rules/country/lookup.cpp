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

constexpr std::string_view kEuropæiskeUndtagelser = "TA0,TA1,TB0,TB1,TC0,TC1,YM0,YM1,";

int PfxStart(std::string_view tekst) {
    if (tekst.empty()) throw RunTimeError(Failure::InvalidCall);
    return gaPfxStart[static_cast<unsigned char>(tekst.front())];
}

/// The row of Lande to which a row of RefPfx points: the first whose prefix is not below the wanted one, or the last. There
/// is no test of equality, so a table out of order can give a neighbour: accepted.
LandRec& LandAf(const PfxRec& pfx) {
    const auto sidste = static_cast<std::size_t>(LandeIBrug());
    std::size_t j = 1;
    while (j < sidste && pfx.Land.Padded() > Lande[j].Pfx.Padded()) ++j;
    return Lande[j];
}

/// The country of a call, or nothing. `pfxcall` becomes the text that was looked up as a prefix, where it came so far.
LandRec* FindLand(std::string_view call, std::string& pfxcall) {
    pfxcall.clear();
    int række = FindHeleCall(call, PfxStart(call));
    if (række == 0) {
        findPfxCall(call, pfxcall);
        if (pfxcall.empty()) return nullptr;
        række = FindPræfix(pfxcall, PfxStart(pfxcall));
    }
    return række == 0 ? nullptr : &LandAf(RefPfx[static_cast<std::size_t>(række)]);
}

}  // namespace

void LandWkd(std::string_view call, std::string& resultat, Handling handling) {
    resultat.clear();
    std::string pfxcall;
    LandRec* const land = FindLand(call, pfxcall);
    if (land == nullptr) return;

    if (land->Kontinent.Padded() != "EU") {
        const std::string område = std::string(call.substr(0, 3)) + ",";
        if (kEuropæiskeUndtagelser.find(område) == std::string_view::npos) giQSOPoint = 6;
    }

    switch (handling) {
        case Handling::Ned:
            if (!land->Wkd) return;
            giMult = ToInt16(giMult - 1);
            land->Wkd = false;
            break;
        case Handling::Test:
            if (land->Wkd) return;
            break;
        case Handling::Op:
            if (land->Wkd) return;
            giMult = ToInt16(giMult + 1);
            land->Wkd = true;
            break;
    }
    resultat = land->Pfx.Padded();
}

void LandStatusTekst(std::string_view call, std::string& tekst) {
    if (!gbVisLand) return;
    std::string pfxcall;
    const LandRec* const land = FindLand(call, pfxcall);
    tekst.clear();
    if (land == nullptr) {
        // A single character is no prefix yet.
        if (pfxcall.size() < 2) return;
        tekst = Trim(pfxcall);
        tekst += ": er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!"_t;
        return;
    }
    tekst.append(land->Pfx.Trimmed()).append(": ").append(land->Navn.Trimmed());
    tekst.append(" (").append(land->Kontinent.Padded());
    tekst.append(land->Wkd ? "), er kørt."_t : "), er nyt land."_t);
}

bool ErUkendt(std::string_view statusTekst) {
    return statusTekst.find("ukendt") != std::string_view::npos;
}

}  // namespace vatro
