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
    // How many rows have which character, by the place of the character.
    std::array<std::array<Plads, 256>, kPfxLængde> antalMed{};
    for (std::size_t i = 0; i < nøgler.size(); ++i) {
        const std::string_view pfx = rækker[i + 1].Pfx.Padded();
        nøgler[i].plads = static_cast<Plads>(i + 1);
        for (std::size_t nr = 0; nr < kPfxLængde; ++nr) ++antalMed[nr][nøgler[i].tegn[nr] = static_cast<unsigned char>(pfx[nr])];
    }
    std::vector<Nøgle> næste(nøgler.size());
    for (std::size_t nr = kPfxLængde; nr-- > 0 && !nøgler.empty();) {
        std::array<Plads, 256>& start = antalMed[nr];
        // Often nothing but filler.
        if (start[nøgler.front().tegn[nr]] == nøgler.size()) continue;
        std::exclusive_scan(start.begin(), start.end(), start.begin(), Plads{0});
        for (const Nøgle& nøgle : nøgler) næste[start[nøgle.tegn[nr]]++] = nøgle;
        nøgler.swap(næste);
    }
    return nøgler;
}

/// Knows of each place to which group of equal rows its row belongs, and of each group where its rows stand. The groups
/// are numbered in ascending order, so the rows are settled group by group.
class Valg {
public:
    Valg(std::span<const PfxRec> rækker, int antal) : gruppe_(rækker.size()) {
        const std::vector<Nøgle> nøgler = EfterTegn(rækker, antal);
        // A swap adds two places at the most.
        led_.reserve(nøgler.size() * 3 + 1);
        led_.emplace_back();
        første_.reserve(nøgler.size());
        for (std::size_t i = 0; i < nøgler.size(); ++i) {
            if (i == 0 || nøgler[i - 1].tegn != nøgler[i].tegn) første_.push_back(0);
            Sæt(nøgler[i].plads, static_cast<Plads>(første_.size() - 1));
        }
    }

    /// The place of the row to be chosen among those from `fra` on.
    std::size_t Vælg(std::size_t fra) {
        for (;;) {
            while (!steder_.empty()) {
                const Plads plads = steder_.front();
                // An entry stays behind when its row has been moved or settled.
                if (plads >= fra && gruppe_[plads] == nu_) return plads;
                std::pop_heap(steder_.begin(), steder_.end());
                steder_.pop_back();
            }
            if (const Plads ene = Næste(fra); ene != 0) return ene;
        }
    }

    Plads Gruppe(std::size_t plads) const { return gruppe_[plads]; }

    /// A row of this group stands at the place from now on.
    void Sæt(std::size_t hvor, Plads gruppe) {
        const auto plads = static_cast<Plads>(hvor);
        gruppe_[plads] = gruppe;
        if (begyndt_ && gruppe == nu_) {
            steder_.push_back(plads);
            std::push_heap(steder_.begin(), steder_.end());
        } else {
            led_.push_back({plads, første_[gruppe]});
            første_[gruppe] = static_cast<Plads>(led_.size() - 1);
        }
    }

private:
    struct Led {
        Plads plads = 0;
        Plads næste = 0;
    };

    /// Goes on to the next group. Most have one row: its place, or 0 for a group of none or several.
    Plads Næste(std::size_t fra) {
        if (begyndt_) ++nu_;
        begyndt_ = true;
        for (Plads led = første_[nu_]; led != 0; led = led_[led].næste) {
            const Plads plads = led_[led].plads;
            if (plads >= fra && gruppe_[plads] == nu_) steder_.push_back(plads);
        }
        if (steder_.size() == 1) {
            const Plads ene = steder_.front();
            steder_.clear();
            return ene;
        }
        std::make_heap(steder_.begin(), steder_.end());
        return 0;
    }

    /// By place.
    std::vector<Plads> gruppe_;
    /// By group: its first entry in led_, 0 for none. Entry 0 is no entry.
    std::vector<Plads> første_;
    std::vector<Led> led_;
    /// The group that is being settled, and a heap of the places of its rows, the last one on top.
    Plads nu_ = 0;
    bool begyndt_ = false;
    std::vector<Plads> steder_;
};

}  // namespace

void SorterPræfikser(std::span<PfxRec> rækker, int antal, const std::function<void(int)>& trin) {
    Valg valg(rækker, antal);
    const auto sidste = static_cast<std::size_t>(antal);
    const std::size_t reserve = rækker.size() - 1;
    for (std::size_t i = 1; i <= sidste; ++i) {
        trin(static_cast<int>(i));
        const std::size_t valgt = valg.Vælg(i);
        if (valgt == i) continue;
        rækker[reserve] = rækker[i];
        rækker[i] = rækker[valgt];
        rækker[valgt] = rækker[reserve];
        if (valgt != reserve) valg.Sæt(valgt, valg.Gruppe(i));
        if (reserve <= sidste) valg.Sæt(reserve, valg.Gruppe(i));
    }
}

}  // namespace vatro
