// SPDX-License-Identifier: MIT
#include "score/stations.h"

#include <algorithm>

#include "codepage.h"
#include "frame/station.h"
#include "platform.h"
#include "score/points.h"

namespace vatro {

using namespace literals;

std::array<EDRRec, kEdrRækker + 1> EDRstn;
std::int16_t giEDR = 0;

namespace {

/// The calls of the rows, packed: every line of a log that is loaded is looked for among all stations.
std::array<std::uint64_t, kEdrRækker + 1> nøgler{};

std::uint64_t Nøgle(std::string_view seksTegn) {
    std::uint64_t nøgle = 0;
    for (const char c : seksTegn) nøgle = (nøgle << 8U) | static_cast<unsigned char>(c);
    return nøgle;
}

std::string_view EdrCall(const EDRRec& station) {
    return station.Linje.Padded().substr(0, kEdrCall);
}

}  // namespace

int EDRIBrug() {
    return std::min<int>(giEDR, kEdrRækker);
}

void IndlæsEDR() {
    Files& filer = platform().files;
    try {
        filer.Open(1, Sti(gsFDLib, "edr.txt"), FileMode::Input);
        giEDR = 0;
        while (!filer.EndOfFile(1)) {
            const std::string linje = filer.LineInput(1);
            ++giEDR;
            if (giEDR > kEdrRækker) throw RunTimeError(Failure::IndexOutOfRange);
            const auto række = static_cast<std::size_t>(giEDR);
            EDRstn[række].Linje = linje;
            EDRstn[række].Wkd = false;
            nøgler[række] = Nøgle(EdrCall(EDRstn[række]));
        }
        filer.Close(1);
    } catch (const RunTimeError&) {
        MsgBox("Kan ikke finde filen " + Sti(gsFDLib, "edr.txt"));
    }
}

void EDRstnWkd(std::string& call, Handling handling) {
    call.resize(kEdrCall, ' ');
    const std::uint64_t søgt = Nøgle(call);
    const auto ende = nøgler.begin() + EDRIBrug() + 1;
    for (auto nøgle = std::find(nøgler.begin() + 1, ende, søgt); nøgle != ende; nøgle = std::find(nøgle + 1, ende, søgt)) {
        giQSOPoint = 10;
        if (handling != Handling::Test) EDRstn[static_cast<std::size_t>(nøgle - nøgler.begin())].Wkd = handling == Handling::Op;
    }
}

void findEDRstn(std::string_view call, std::string& tekst) {
    for (int i = 1; i <= EDRIBrug(); ++i) {
        const EDRRec& station = EDRstn[static_cast<std::size_t>(i)];
        if (Trim(EdrCall(station)) != Trim(call)) continue;
        const std::string_view linje = station.Linje.Padded();
        tekst = linje.substr(0, linje.find(','));
        return;
    }
}

void ResetEDR() {
    for (EDRRec& station : EDRstn) station.Wkd = false;
}

void NulstilEDR() {
    EDRstn.fill({});
    nøgler.fill(0);
    giEDR = 0;
}

}  // namespace vatro
