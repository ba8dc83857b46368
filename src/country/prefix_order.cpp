// SPDX-License-Identifier: MIT
#include "country/prefix_order.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vatro {

namespace {

/// A prefix as two numbers that compare as its characters do.
struct Nøgle {
    std::uint64_t start = 0;
    std::uint16_t slut = 0;
    std::uint16_t plads = 0;
    bool Før(const Nøgle& b) const { return start != b.start ? start < b.start : slut < b.slut; }
};

Nøgle NøgleFor(const PfxRec& række, std::size_t plads) {
    Nøgle nøgle;
    const std::string_view pfx = række.Pfx.Padded();
    static_assert(kPfxLængde == 10);
    for (const char c : pfx.substr(0, 8)) nøgle.start = nøgle.start << 8U | static_cast<unsigned char>(c);
    nøgle.slut = static_cast<std::uint16_t>(static_cast<unsigned char>(pfx[8]) << 8U | static_cast<unsigned char>(pfx[9]));
    nøgle.plads = static_cast<std::uint16_t>(plads);
    return nøgle;
}

/// Knows of each place to which group of equal rows its row belongs, and of each group where its rows stand. The groups
/// are numbered in ascending order, so the rows are settled group by group.
class Valg {
public:
    Valg(std::span<const PfxRec> rækker, int antal) : gruppe_(rækker.size()) {
        std::vector<Nøgle> nøgler;
        nøgler.reserve(static_cast<std::size_t>(antal));
        for (std::size_t plads = 1; plads <= static_cast<std::size_t>(antal); ++plads) nøgler.push_back(NøgleFor(rækker[plads], plads));
        std::sort(nøgler.begin(), nøgler.end(), [](const Nøgle& a, const Nøgle& b) { return a.Før(b); });
        // A swap adds two places at the most.
        led_.reserve(nøgler.size() * 3 + 1);
        led_.emplace_back();
        første_.reserve(nøgler.size() + 1);
        for (std::size_t i = 0; i < nøgler.size(); ++i) {
            if (i == 0 || nøgler[i - 1].Før(nøgler[i])) første_.push_back(0);
            Sæt(nøgler[i].plads, første_.size() - 1);
        }
    }

    /// The place of the row to be chosen among those from `fra` on.
    std::size_t Vælg(std::size_t fra) {
        for (;;) {
            while (!steder_.empty()) {
                const std::size_t plads = steder_.front();
                // An entry stays behind when its row has been moved or settled.
                if (plads >= fra && gruppe_[plads] == nu_) return plads;
                std::pop_heap(steder_.begin(), steder_.end());
                steder_.pop_back();
            }
            Næste();
        }
    }

    std::size_t Gruppe(std::size_t plads) const { return gruppe_[plads]; }

    /// A row of this group stands at the place from now on.
    void Sæt(std::size_t plads, std::size_t gruppe) {
        gruppe_[plads] = gruppe;
        if (begyndt_ && gruppe == nu_) {
            steder_.push_back(plads);
            std::push_heap(steder_.begin(), steder_.end());
        } else {
            led_.push_back({plads, første_[gruppe]});
            første_[gruppe] = led_.size() - 1;
        }
    }

private:
    struct Led {
        std::size_t plads = 0;
        std::size_t næste = 0;
    };

    void Næste() {
        nu_ = begyndt_ ? nu_ + 1 : 0;
        begyndt_ = true;
        for (std::size_t led = første_[nu_]; led != 0; led = led_[led].næste) steder_.push_back(led_[led].plads);
        std::make_heap(steder_.begin(), steder_.end());
    }

    /// By place.
    std::vector<std::size_t> gruppe_;
    /// By group: its first entry in led_, 0 for none. Entry 0 is no entry.
    std::vector<std::size_t> første_;
    std::vector<Led> led_;
    /// The group that is being settled, and a heap of the places of its rows, the last one on top.
    std::size_t nu_ = 0;
    bool begyndt_ = false;
    std::vector<std::size_t> steder_;
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
