// SPDX-License-Identifier: MIT
#include "country/cty_fit.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "call/call_analysis.h"
#include "codepage.h"
#include "country/cty_file.h"
#include "country/tables.h"
#include "errors.h"

namespace vatro {

namespace {

constexpr std::size_t kLinjeLængde = 78;

bool Stjerne(const CtyLand& land) {
    return land.pfx.starts_with('*');
}

/// An item that stays, and its country.
struct Sted {
    const CtyLand* land = nullptr;
    CtyItem* post = nullptr;
};

bool SammeZoner(const CtyItem& a, const CtyItem& b) {
    return a.cqZone == b.cqZone && a.ituZone == b.ituZone;
}

/// The text that is looked up where the call is not found whole.
std::string Landetekst(const CtyItem& post) {
    std::string tekst;
    findPfxCall(post.helt, tekst);
    return tekst;
}

/// Whether the row of the item is met by the item's own call.
bool Opnåelig(const CtyItem& post) {
    return post.helt.size() <= kPfxLængde || Landetekst(post).starts_with(post.pfx);
}

/// The items that stay, by prefix.
class Beholdt {
public:
    /// False if the prefix is there already.
    bool Tilføj(const Sted& sted) { return steder_.emplace(sted.post->pfx, sted).second; }
    void Fjern(CtyItem& post) {
        post.med = false;
        steder_.erase(post.pfx);
    }
    std::size_t Antal() const { return steder_.size(); }
    const Sted* Find(const std::string& pfx) const {
        const auto fundet = steder_.find(pfx);
        return fundet == steder_.end() ? nullptr : &fundet->second;
    }
    /// What gives the item its country without its own row: the longest other one that begins the text, or nothing.
    const Sted* Ellers(const CtyItem& post) const {
        const std::string tekst = Landetekst(post);
        for (std::size_t længde = std::min(tekst.size(), kPfxLængde) + 1; længde-- > 0;)
            if (const Sted* sted = Find(tekst.substr(0, længde)); sted != nullptr && sted->post->pfx != post.pfx) return sted;
        return nullptr;
    }

private:
    std::unordered_map<std::string, Sted> steder_;
};

[[noreturn]] void FejlILinje(std::size_t nr, const std::string& hvad) {
    throw CtyFejl{"linje " + std::to_string(nr) + ": " + hvad};
}

/// All items but those that stand twice, the shortest first; of equal length in the order of the file. What stands twice under
/// one country goes to `dobbelte`, first those with the same zones.
std::vector<Sted> Stedfæst(std::vector<CtyLand>& lande, Beholdt& beholdt, std::vector<Sted>& dobbelte, CtyUdeladt& ude) {
    std::vector<Sted> steder;
    std::vector<Sted> andreZoner;
    for (CtyLand& land : lande)
        for (CtyItem& post : land.poster) {
            const Sted sted{&land, &post};
            if (beholdt.Tilføj(sted)) {
                steder.push_back(sted);
                continue;
            }
            const Sted& første = *beholdt.Find(post.pfx);
            if (første.land->pfx == land.pfx) {
                (SammeZoner(*første.post, post) ? dobbelte : andreZoner).push_back(sted);
                continue;
            }
            post.med = false;
            ude.dubletter.push_back(post.tekst);
        }
    dobbelte.insert(dobbelte.end(), andreZoner.begin(), andreZoner.end());
    std::stable_sort(steder.begin(), steder.end(), [](const Sted& a, const Sted& b) { return a.post->pfx.size() < b.post->pfx.size(); });
    return steder;
}

/// Leaves out items that may go until the rest fits.
template <class MåUd>
void Udelad(const std::vector<Sted>& steder, Beholdt& beholdt, std::size_t plads, MåUd måUd) {
    for (const Sted& sted : steder) {
        if (beholdt.Antal() <= plads) return;
        if (sted.post->med && måUd(sted, beholdt.Ellers(*sted.post))) beholdt.Fjern(*sted.post);
    }
}

/// Leaves out calls that the program never finds, unless another prefix leads them home all the same.
void UdeladVildledte(const std::vector<Sted>& steder, Beholdt& beholdt) {
    Udelad(steder, beholdt, 0, [](const Sted& sted, const Sted* ellers) {
        return !Opnåelig(*sted.post) && (ellers == nullptr || ellers->land->pfx != sted.land->pfx);
    });
}

/// Leaves out calls of full length that stand before all other prefixes of their first character and that no other one
/// gives: until the program is started again the import's index leads past them.
void UdeladForreste(const std::vector<Sted>& steder, Beholdt& beholdt) {
    std::map<std::string, Sted> rækker;
    for (const Sted& sted : steder) {
        std::string nøgle = sted.post->pfx;
        nøgle.resize(kPfxLængde, kCtyFyld);
        if (sted.post->med) rækker.emplace(nøgle, sted);
    }
    char indekseret = '\0';
    for (const auto& [nøgle, sted] : rækker) {
        if (nøgle.front() == indekseret) continue;
        if (nøgle.back() == kCtyFyld) {
            indekseret = nøgle.front();
            continue;
        }
        const Sted* ellers = beholdt.Ellers(*sted.post);
        if (ellers == nullptr || ellers->land->pfx != sted.land->pfx) beholdt.Fjern(*sted.post);
    }
}

/// Enters what it costs that the item is left out, where `giver` decides its country now.
void Bogfør(CtyUdeladt& ude, const Sted& sted, const Sted* giver) {
    const CtyItem& post = *sted.post;
    std::vector<std::string>* liste = &ude.intetTabt;
    if (!Opnåelig(post))
        liste = &ude.uopnåelige;
    else if (giver == nullptr || giver->land->pfx != sted.land->pfx)
        liste = &ude.kald;
    else if (!SammeZoner(*giver->post, post))
        liste = &ude.zoner;
    liste->push_back(post.tekst);
}

}  // namespace

std::vector<std::string> CtyLinjer(std::string_view indhold) {
    std::vector<std::string> linjer;
    while (!indhold.empty()) {
        const std::size_t slut = std::min(indhold.find_first_of("\r\n"), indhold.size());
        linjer.emplace_back(indhold.substr(0, slut));
        indhold.remove_prefix(slut);
        if (indhold.empty()) break;
        indhold.remove_prefix(indhold.starts_with("\r\n") ? 2 : 1);
    }
    return linjer;
}

std::vector<CtyLand> LæsCtyFil(const std::vector<std::string>& linjer) {
    std::vector<CtyLand> lande;
    for (std::size_t nr = 0; nr < linjer.size(); ++nr) {
        CtyLand land;
        land.hoved = linjer[nr];
        try {
            const CtyHoved hoved = LæsCtyHoved(land.hoved);
            land.pfx = hoved.pfx.substr(0, kPfxLængde);
            if (!hoved.Udelades())
                for (const std::string_view tal : {hoved.bredde, hoved.længde, hoved.tidsZone}) LæsCtyTal(tal);
            do {
                if (++nr == linjer.size()) FejlILinje(nr, "filen holder op midt i et land");
                CtyPoster rest(linjer[nr], hoved);
                while (rest.Flere()) {
                    const std::string_view tekst = rest.NæsteTekst();
                    if (tekst.empty()) FejlILinje(nr + 1, "en post er tom");
                    // The import takes it for a part of the item, which at the end of a line could not be written so again.
                    if (tekst.find(';') != std::string_view::npos) FejlILinje(nr + 1, "';' står inde i en post");
                    const CtyPost post = CtyPoster::Opdel(tekst, hoved);
                    land.poster.push_back({std::string(tekst), std::string(post.tekst), std::string(post.tekst.substr(0, kPfxLængde)),
                                           post.cqZone, post.ituZone, post.kald, true});
                }
            } while (!linjer[nr].ends_with(';'));
        } catch (const RunTimeError&) {
            FejlILinje(nr + 1, "kan ikke læses");
        }
        lande.push_back(std::move(land));
    }
    return lande;
}

std::vector<std::string> KontrollerCty(const std::vector<CtyLand>& lande) {
    std::vector<std::string> fejl;
    std::size_t antalLande = 0;
    std::size_t poster = 0;
    bool udeladt = false;
    const CtyLand* forrige = nullptr;
    std::unordered_map<std::string, std::string> landAf;
    for (const CtyLand& land : lande) {
        if (Stjerne(land) && !udeladt) {
            udeladt = true;
            continue;
        }
        if (udeladt && Stjerne(land)) fejl.push_back("to lande med * efter hinanden: " + ToUtf8(land.pfx) + " bliver taget med");
        // The import looks for the next header by its last character.
        if (udeladt && !land.hoved.ends_with(':'))
            fejl.push_back("overskriften efter et land med * slutter ikke med ':': " + ToUtf8(land.hoved));
        udeladt = false;
        ++antalLande;
        poster += land.poster.size();
        if (forrige != nullptr && forrige->pfx >= land.pfx)
            fejl.push_back(ToUtf8(land.pfx) + " står ikke i rækkefølge efter " + ToUtf8(forrige->pfx));
        forrige = &land;
        for (const CtyItem& post : land.poster) {
            const auto [sted, ny] = landAf.emplace(post.pfx, land.pfx);
            if (!ny && sted->second != land.pfx)
                fejl.push_back(ToUtf8(post.pfx) + " står under både " + ToUtf8(sted->second) + " og " + ToUtf8(land.pfx));
        }
    }
    if (udeladt) fejl.emplace_back("det sidste land er mærket med *");
    if (antalLande == 0) fejl.emplace_back("filen har ingen lande");
    if (antalLande > static_cast<std::size_t>(kLandeRækker))
        fejl.push_back(std::to_string(antalLande) + " lande, der er plads til " + std::to_string(kLandeRækker));
    if (poster > kPladsTilPræfikser)
        fejl.push_back(std::to_string(poster) + " præfixer, der er plads til " + std::to_string(kPladsTilPræfikser));
    return fejl;
}

CtyUdeladt TilpasCty(std::vector<CtyLand>& lande, std::size_t plads) {
    CtyUdeladt ude;
    for (const CtyLand& land : lande)
        if (Stjerne(land)) ude.lande.push_back(land.pfx);
    std::erase_if(lande, Stjerne);

    Beholdt beholdt;
    std::vector<Sted> dobbelte;
    const std::vector<Sted> steder = Stedfæst(lande, beholdt, dobbelte, ude);
    for (std::size_t i = 0; i < dobbelte.size() && beholdt.Antal() + dobbelte.size() - i > plads; ++i) dobbelte[i].post->med = false;
    // A call is no support, with or without its mark: it may have to go itself.
    const auto støttet = [](const Sted& sted, const Sted* ellers) {
        return ellers != nullptr && !ellers->post->kald && ellers->post->helt.find('/') == std::string::npos &&
               ellers->land->pfx == sted.land->pfx;
    };
    UdeladVildledte(steder, beholdt);
    Udelad(steder, beholdt, plads, [](const Sted& sted, const Sted*) { return !Opnåelig(*sted.post); });
    Udelad(steder, beholdt, plads,
           [&](const Sted& sted, const Sted* ellers) { return støttet(sted, ellers) && SammeZoner(*sted.post, *ellers->post); });
    Udelad(steder, beholdt, plads, støttet);
    Udelad(steder, beholdt, plads, [](const Sted& sted, const Sted*) { return sted.post->kald; });
    if (beholdt.Antal() > plads)
        throw CtyFejl{std::to_string(beholdt.Antal()) + " præfixer kan ikke undværes, der er plads til " + std::to_string(plads)};

    UdeladForreste(steder, beholdt);
    // What led them home may have gone.
    UdeladVildledte(steder, beholdt);

    // What an item has lost shows only now: the one that gave its zones may have gone after it.
    for (const Sted& sted : dobbelte) {
        const Sted* første = beholdt.Find(sted.post->pfx);
        if (første == nullptr) sted.post->med = false;
        if (!sted.post->med) Bogfør(ude, sted, første != nullptr ? første : beholdt.Ellers(*sted.post));
    }
    for (const Sted& sted : steder)
        if (!sted.post->med) Bogfør(ude, sted, beholdt.Ellers(*sted.post));
    return ude;
}

std::vector<std::string> SkrivCty(const std::vector<CtyLand>& lande) {
    std::vector<std::string> linjer;
    for (const CtyLand& land : lande) {
        linjer.push_back(land.hoved);
        std::string linje(4, ' ');
        bool første = true;
        for (const CtyItem& post : land.poster) {
            if (!post.med) continue;
            if (!første) linje += ',';
            if (linje.size() > 4 && linje.size() + post.tekst.size() + 1 > kLinjeLængde) {
                linjer.push_back(linje);
                linje.assign(4, ' ');
            }
            linje += post.tekst;
            første = false;
        }
        linjer.push_back(linje + ';');
    }
    return linjer;
}

}  // namespace vatro
