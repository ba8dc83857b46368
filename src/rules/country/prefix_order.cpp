// SPDX-License-Identifier: MIT
#include "country/prefix_order.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <vector>

namespace vatro {

namespace {

using Plads = std::uint16_t;

/// A row by its characters and its place.
struct Nøgle {
    std::array<unsigned char, kPfxLængde> tegn{};
    Plads plads = 0;
};

/// The rows 1 to `antal` in ascending order: sorted by each character in turn, the last one first, every time without
/// disturbing the order of equal ones.
std::vector<Nøgle> EfterTegn(std::span<const PfxRec> rækker, int antal) {
    std::vector<Nøgle> nøgler(static_cast<std::size_t>(antal));
    // Which places of a character are not the same in all rows; at the end of most there is nothing but filler.
    std::array<unsigned char, kPfxLængde> forskel{};
    for (std::size_t i = 0; i < nøgler.size(); ++i) {
        std::ranges::copy(rækker[i + 1].Pfx.Padded(), nøgler[i].tegn.begin());
        nøgler[i].plads = static_cast<Plads>(i + 1);
        for (std::size_t nr = 0; nr < kPfxLængde; ++nr)
            forskel[nr] = static_cast<unsigned char>(forskel[nr] | (nøgler[i].tegn[nr] ^ nøgler[0].tegn[nr]));
    }
    std::vector<Nøgle> næste(nøgler.size());
    for (std::size_t nr = kPfxLængde; nr-- > 0;) {
        if (forskel[nr] == 0) continue;
        std::array<Plads, 256> start{};
        for (const Nøgle& nøgle : nøgler) ++start[nøgle.tegn[nr]];
        std::exclusive_scan(start.begin(), start.end(), start.begin(), Plads{0});
        for (const Nøgle& nøgle : nøgler) næste[start[nøgle.tegn[nr]]++] = nøgle;
        nøgler.swap(næste);
    }
    return nøgler;
}

/// The selection sort itself, for a full table, in which the spare row is one of those that are sorted.
void Udvælg(std::span<PfxRec> rækker, const std::function<void(int)>& trin) {
    PfxRec& reserve = rækker.back();
    for (std::size_t i = 1; i < rækker.size(); ++i) {
        trin(static_cast<int>(i));
        std::size_t valgt = i;
        for (std::size_t j = i + 1; j < rækker.size(); ++j)
            if (rækker[j].Pfx.Padded() <= rækker[valgt].Pfx.Padded()) valgt = j;
        if (valgt == i) continue;
        reserve = rækker[i];
        rækker[i] = rækker[valgt];
        rækker[valgt] = reserve;
    }
}

}  // namespace

void SorterPræfikser(std::span<PfxRec> rækker, int antal, const std::function<void(int)>& trin) {
    const auto sidste = static_cast<std::size_t>(antal);
    if (sidste + 1 == rækker.size()) return Udvælg(rækker, trin);

    std::vector<Nøgle> rest = EfterTegn(rækker, antal);
    // Only places are swapped until the order is known: where each row has gone, and which row stands at each place.
    std::vector<Plads> sted(sidste + 1);
    std::iota(sted.begin(), sted.end(), Plads{0});
    std::vector<Plads> række = sted;
    Plads sidstByttet = 0;
    for (std::size_t i = 1; i <= sidste; ++i) {
        trin(static_cast<int>(i));
        // Of the rows that are left the smallest are in front. There are seldom two.
        std::size_t valgt = i - 1;
        for (std::size_t j = i; j < sidste && rest[j].tegn == rest[i - 1].tegn; ++j)
            if (sted[rest[j].plads] > sted[rest[valgt].plads]) valgt = j;
        std::swap(rest[i - 1].plads, rest[valgt].plads);
        const Plads valgtRække = rest[i - 1].plads;
        const Plads hertil = sted[valgtRække];
        if (hertil == i) continue;
        sidstByttet = række[i];
        række[hertil] = sidstByttet;
        sted[sidstByttet] = hertil;
        række[i] = valgtRække;
    }
    if (sidstByttet == 0) return;

    const std::vector<PfxRec> før(rækker.begin(), rækker.begin() + antal + 1);
    for (std::size_t i = 1; i <= sidste; ++i) rækker[i] = før[række[i]];
    rækker.back() = før[sidstByttet];
}

}  // namespace vatro
