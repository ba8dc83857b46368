// SPDX-License-Identifier: MIT
#include "country/tables.h"

#include <algorithm>
#include <string>

#include "codepage.h"
#include "frame/frmSplash.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

std::array<LandRec, kLandeRækker + 1> Lande;
std::array<PfxRec, kRefPfxRækker + 1> RefPfx;
std::int16_t giLande = 0;
std::int16_t giRefPfx = 0;
std::array<std::int16_t, 257> gaPfxStart{};

namespace {

/// Reads every line of a data file. A failure of the file or of a line is told by the file's name.
template <class Linje>
void IndlæsTabel(std::string_view fil, std::string_view navn, std::string_view trin, std::int16_t& antal, Linje linje) {
    Files& filer = platform().files;
    try {
        filer.Open(1, Sti(gsFDLib, fil), FileMode::Input);
        frmSplash->Vis(trin);
        antal = 0;
        while (!filer.EndOfFile(1)) linje(filer.LineInput(1));
        filer.Close(1);
    } catch (const RunTimeError&) {
        filer.Close(1);
        MessageBox besked;
        besked.text = Sti(gsFDLib, navn) + " kunne ikke findes. Importer cty.dat";
        besked.icon = Icon::Information;
        MsgBox(besked);
    }
}

/// The next row of a table; a count above `rækker` is a failure, and stays.
std::size_t NæsteRække(std::int16_t& antal, int rækker) {
    ++antal;
    if (antal > rækker) throw RunTimeError(Failure::IndexOutOfRange);
    return static_cast<std::size_t>(antal);
}

// A search of RefPfx looks from a start row to the end of the table for the first row that is met. What the rows hold is
// found by a table of hashes, so that a search without a hit costs no more than one with a hit; `næste` joins the rows of
// one prefix in ascending order.
constexpr std::size_t kSpande = 16384;
std::array<std::int16_t, kSpande> spand{};
std::array<std::int16_t, kRefPfxRækker + 1> næste{};

constexpr std::uint32_t kHashStart = 2166136261U;

constexpr std::uint32_t Hash(std::uint32_t hash, char c) {
    return (hash ^ static_cast<unsigned char>(c)) * 16777619U;
}

std::size_t Spand(std::uint32_t hash) {
    return (hash ^ (hash >> 15U)) % kSpande;
}

/// The first row from `start` on that holds `pfx`, whose hash is given; 0 if none does.
int FørsteRække(std::string_view pfx, std::uint32_t hash, int start) {
    for (int i = spand[Spand(hash)]; i != 0; i = næste[static_cast<std::size_t>(i)])
        if (i >= start && RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed() == pfx) return i;
    return 0;
}

int IkkeFundet() {
    if (giRefPfx >= kRefPfxRækker) throw RunTimeError(Failure::IndexOutOfRange);
    return 0;
}

}  // namespace

int LandeIBrug() {
    return std::min<int>(giLande, kLandeRækker);
}

void IndlæsLande() {
    IndlæsTabel("lande.txt", "Lande.txt", "Indlæser lande.txt"_t, giLande, [](std::string_view linje) {
        LandRec& land = Lande[NæsteRække(giLande, kLandeRækker)];
        land.Pfx = Trim(Columns(linje, 1, kPfxLængde));
        land.Navn = Trim(Columns(linje, 11, 25));
        land.Kontinent = Trim(Columns(linje, 36, 2));
        land.TidsZone = ToFloat32(ToNumber(Trim(Columns(linje, 39, 5))));
        land.Wkd = false;
    });
}

void IndlæsRefPfx() {
    std::string_view sidste;
    IndlæsTabel("refpfx.txt", "RefPfx.txt", "Indlæser refpfx.txt"_t, giRefPfx, [&sidste](std::string_view linje) {
        const std::size_t række = NæsteRække(giRefPfx, kRefPfxRækker);
        PfxRec& pfx = RefPfx[række];
        pfx.Pfx = Trim(Columns(linje, 1, kPfxLængde));
        pfx.Land = Trim(Columns(linje, 11, kPfxLængde));
        pfx.CQzone = Columns(linje, 21, 2);
        pfx.ITUzone = Columns(linje, 24, 2);
        const std::string_view første = pfx.Pfx.Padded().substr(0, 1);
        if (første == sidste) return;
        sidste = første;
        gaPfxStart[static_cast<unsigned char>(første.front())] = static_cast<std::int16_t>(række);
    });
    IndekserRefPfx();
}

void IndekserRefPfx() {
    spand.fill(0);
    // From the end, so that each chain ascends.
    for (int i = std::min<int>(giRefPfx, kRefPfxRækker); i > 0; --i) {
        const auto række = static_cast<std::size_t>(i);
        std::uint32_t hash = kHashStart;
        for (const char c : RefPfx[række].Pfx.Trimmed()) hash = Hash(hash, c);
        std::int16_t& første = spand[Spand(hash)];
        næste[række] = første;
        første = static_cast<std::int16_t>(i);
    }
}

int FindHeleCall(std::string_view call, int start) {
    if (call.size() > kPfxLængde) return IkkeFundet();
    std::uint32_t hash = kHashStart;
    for (const char c : call) hash = Hash(hash, c);
    const int række = FørsteRække(call, hash, start);
    return række != 0 ? række : IkkeFundet();
}

int FindPræfix(std::string_view s, int start) {
    int fundet = 0;
    std::uint32_t hash = kHashStart;
    for (std::size_t længde = 0; længde <= std::min(s.size(), kPfxLængde); ++længde) {
        if (længde > 0) hash = Hash(hash, s[længde - 1]);
        const int række = FørsteRække(s.substr(0, længde), hash, start);
        if (række != 0 && (fundet == 0 || række < fundet)) fundet = række;
    }
    return fundet != 0 ? fundet : IkkeFundet();
}

void NulstilTabeller() {
    Lande.fill({});
    RefPfx.fill({});
    giLande = 0;
    giRefPfx = 0;
    gaPfxStart.fill(0);
    IndekserRefPfx();
}

}  // namespace vatro
