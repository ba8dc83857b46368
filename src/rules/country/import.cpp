// SPDX-License-Identifier: MIT
#include "country/import.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "codepage.h"
#include "country/cty_file.h"
#include "country/prefix_order.h"
#include "country/tables.h"
#include "entry/frmMain.h"
#include "entry/validation.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"
#include "tables/frmCtyDat.h"

namespace vatro {

using namespace literals;

namespace {

/// "-" or a blank, the number in its shortest form, a blank.
std::string TalTekst(float tal) {
    // The smallest float has 45 decimals.
    std::array<char, 64> cifre;
    const auto slut = std::to_chars(cifre.data(), cifre.data() + cifre.size(), std::fabs(tal), std::chars_format::fixed).ptr;
    return (tal < 0 ? "-" : " ") + std::string(cifre.data(), slut) + " ";
}

void VisOverløb(int antal) {
    MessageBox besked;
    besked.title = "Tabeloverløb"_t;
    besked.text = "Der er " + PlainNumber(antal);
    besked.text += " præfixer, men der er kun plads til "_t;
    besked.text += PlainNumber(kRefPfxRækker);
    besked.text += " i tabellen. \r\n";
    besked.text += "Kontakt programleverandøren om fejlen. \r\n"_t;
    besked.text += "I kan køre videre, men der vil være fejl i jeres præfixberegning. \r\n"_t;
    besked.text += "Det kan rettes op senere med en korrekt fil.";
    besked.icon = Icon::Information;
    MsgBox(besked);
}

/// Takes the country file into the tables. The rows in use are not counted there before the whole file is read.
class Indlæser {
public:
    void Indlæs() {
        Files& filer = platform().files;
        filer.Open(1, Sti(gsFDLib, "cty.dat"), FileMode::Input);
        while (!filer.EndOfFile(1)) IndlæsLand(filer);
        filer.Close(1);
        giLande = ToInt16(lande_);
        giRefPfx = ToInt16(præfikser_);
    }

private:
    void IndlæsLand(Files& filer) {
        std::string linje = filer.LineInput(1);
        CtyHoved hoved = LæsCtyHoved(linje);
        if (hoved.Udelades()) {
            do linje = filer.LineInput(1);
            while (!linje.ends_with(':'));
            // Not looked at for a mark again: of two left out one behind the other the second one is kept. That is meant so.
            hoved = LæsCtyHoved(linje);
        }
        GemLand(hoved);
        std::string præfikser;
        do {
            præfikser = filer.LineInput(1);
            CtyPoster poster(præfikser, hoved);
            while (poster.Flere()) GemPræfiks(poster.Næste());
        } while (!præfikser.ends_with(';'));
    }

    void GemLand(const CtyHoved& hoved) {
        if (++lande_ > kLandeRækker) throw RunTimeError(Failure::IndexOutOfRange);
        LandRec& land = Lande[static_cast<std::size_t>(lande_)];
        land.Pfx = hoved.pfx;
        land.Navn = hoved.navn;
        land.Kontinent = hoved.kontinent;
        land.Bredde = LæsCtyTal(hoved.bredde);
        land.Laengde = LæsCtyTal(hoved.længde);
        land.TidsZone = LæsCtyTal(hoved.tidsZone);
    }

    void GemPræfiks(const CtyPost& post) {
        if (++præfikser_ > kRefPfxRækker) {
            VisOverløb(præfikser_);
            throw RunTimeError(Failure::IndexOutOfRange);
        }
        PfxRec& række = RefPfx[static_cast<std::size_t>(præfikser_)];
        række.Land = Lande[static_cast<std::size_t>(lande_)].Pfx;
        række.Pfx.Fill(post.tekst, kCtyFyld);
        række.ITUzone = post.ituZone;
        række.CQzone = post.cqZone;
    }

    int lande_ = 0;
    int præfikser_ = 0;
};

/// Takes the filler off and finds the first row of each first character. A prefix of full length has no filler and is
/// passed over by both; that is meant so.
void RydOp(int række, std::optional<char>& sidste) {
    FixedText<kPfxLængde>& pfx = RefPfx[static_cast<std::size_t>(række)].Pfx;
    const FixedText<kPfxLængde> nøgle = pfx;
    const std::string_view tegn = nøgle.Padded();
    if (tegn.back() != kCtyFyld) return;
    pfx = std::string_view(tegn.begin(), std::ranges::find(tegn, kCtyFyld));
    const char første = pfx.Padded().front();
    if (første == sidste) return;
    sidste = første;
    gaPfxStart[static_cast<unsigned char>(første)] = static_cast<std::int16_t>(række);
}

template <class Linje>
void SkrivFil(FrmCtyDat& form, std::string_view navn, std::string_view trin, int antal, Linje linje) {
    Files& filer = platform().files;
    form.Vis(trin);
    filer.Open(1, Sti(gsFDLib, navn), FileMode::Output);
    form.Begynd(antal);
    for (int i = 1; i <= antal; ++i) {
        form.Trin(i);
        filer.PrintLine(1, linje(static_cast<std::size_t>(i)));
    }
    filer.Close(1);
}

std::string LandLinje(std::size_t række) {
    const LandRec& land = Lande[række];
    std::string linje;
    linje.append(land.Pfx.Padded()).append(land.Navn.Padded()).append(land.Kontinent.Padded()).append(" ");
    return linje + TalTekst(land.TidsZone);
}

/// Six thousand of them: in place, column by column.
std::string_view PfxLinje(std::size_t række) {
    static std::array<char, 2 * kPfxLængde + 5> linje{};
    const PfxRec& pfx = RefPfx[række];
    char* slut = linje.data();
    const auto tilføj = [&slut](std::string_view tekst) { slut += tekst.copy(slut, tekst.size()); };
    tilføj(pfx.Pfx.Padded());
    tilføj(pfx.Land.Padded());
    tilføj(pfx.CQzone.Padded());
    tilføj(" ");
    tilføj(pfx.ITUzone.Padded());
    return {linje.data(), linje.size()};
}

}  // namespace

void ImporterCty() {
    FrmCtyDat& form = *frmCtyDat;
    form.Vis("Indlæser Cty.dat"_t);
    Indlæser().Indlæs();

    form.Vis("Sorterer Præfix-referencetabel"_t);
    form.Begynd(giRefPfx);
    SorterPræfikser(RefPfx, giRefPfx, [&form](int række) { form.Trin(række); });

    form.Vis("Rydder op i Præfix-referencetabel"_t);
    form.Begynd(giRefPfx);
    std::optional<char> sidste;
    for (int i = 1; i <= giRefPfx; ++i) {
        form.Trin(i);
        RydOp(i, sidste);
    }
    IndekserRefPfx();

    SkrivFil(form, "lande.txt", "Skriver Lande.txt fil", giLande, LandLinje);
    SkrivFil(form, "refpfx.txt", "Skriver RefPfx.txt fil", giRefPfx, PfxLinje);
}

void ImporterCtyMenu() {
    MessageBox spørgsmål;
    spørgsmål.title = "Import af CTY.DAT";
    spørgsmål.text = "Det tager nogle minutter. Er du sikker?";
    spørgsmål.buttons = Buttons::YesNo;
    if (MsgBox(spørgsmål) == Answer::Yes) {
        frmMain->SetEnabled(false);
        frmCtyDat->Show();
        ImporterCty();
        frmCtyDat.Unload();
        frmMain->SetEnabled(true);
    }
    IndlæsLogfil();
    ResetQSO();
}

}  // namespace vatro
