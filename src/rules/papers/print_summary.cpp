// SPDX-License-Identifier: MIT
#include <string>

#include "frame/state.h"
#include "frame/station.h"
#include "numbers.h"
#include "page.h"
#include "papers/layout.h"
#include "papers/printing.h"
#include "papers/summary.h"
#include "printing/progress.h"

namespace vatro {

namespace {

void Række(PageSurface& surface, std::string_view tekst) {
    surface.Print(Indrykket(tekst));
}

void BlankRække(PageSurface& surface) {
    Række(surface, " ");
}

std::string Blanke(std::size_t antal) {
    return std::string(antal, ' ');
}

constexpr Båndsøjler kSøjler{"  @@@@@ x ", " @@@@@@@@"};

/// Radio and antenna stand one above the other.
void PrintBånd(PageSurface& surface, const Sammentælling& alt, std::size_t båndNr) {
    Række(surface, Båndrække(kSøjler, båndNr, " CW  ", alt.CW(båndNr)) + Blanke(29) + RigAf(båndNr));
    const LogSum& bånd = alt.band[båndNr];
    Række(surface, Båndrække(kSøjler, båndNr, " SSB ", alt.SSB(båndNr)) + InTemplate("  @@@@@ x ", bånd.Mults) +
                       InTemplate("@@@@@@ = ", bånd.Points) + InTemplate("@@@@@@@@@", bånd.Score) + " " + AntAf(båndNr));
    BlankRække(surface);
}

void PrintTelefon(PageSurface& surface) {
    surface.PrintPart(Indrykket(kTelefonSpørgsmål));
    // Without a number this only ends the line.
    surface.Print(OplystTelefon());
}

void PrintBlad(PageSurface& surface, const Sammentælling& alt) {
    Række(surface, kSammentællingsblad);
    BlankRække(surface);
    Række(surface, "Kaldesignal: " + desk().gsMyCall + Blanke(10) + "Kategori: " + desk().gsKlasse + Blanke(14) +
                       "Antal logsider: " + NumberText(surface.Page()));
    BlankRække(surface);
    Række(surface, "Navn: " + alt.name);
    BlankRække(surface);
    Række(surface, kOperatørerne);
    BlankRække(surface);
    Række(surface, alt.Operatører());
    BlankRække(surface);
    Række(surface, "            QSOs                        Band   Total   Total    Total     Stn/Ant");
    Række(surface, "Bånd        -dubs  Mults x Points =     score  Mult  x Points = Bandscore"_t);
    BlankRække(surface);
    for (std::size_t båndNr = kAntalBånd; båndNr-- > 0;) PrintBånd(surface, alt, båndNr);
    Række(surface, "Total:     " + InTemplate("@@@@@", alt.TotalQSOs) + Blanke(30) + InTemplate("@@@@@@ x ", alt.Total.Mults) +
                       InTemplate("@@@@@@ = ", alt.Total.Points) + InTemplate("@@@@@@@@@", alt.Total.Score));
    BlankRække(surface);
    Række(surface, "Ansvarshavende/Formand:");
    BlankRække(surface);
    BlankRække(surface);
    PrintTelefon(surface);
}

}  // namespace

void PrintSummary(PageSurface& surface) {
    VisForløb(kPrintTitel);
    TilføjForløb("Summary");
    const Sammentælling alt = Sammentæl();
    PrintHoved(surface, "Summary", {});
    PrintBlad(surface, alt);
    PrintFod(surface);
}

}  // namespace vatro
