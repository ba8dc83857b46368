// SPDX-License-Identifier: MIT
#include <string>

#include "numbers.h"
#include "papers/layout.h"
#include "papers/printing.h"

namespace vatro {

namespace {

void Row(PageSink& pages, std::string_view text) {
    pages.PrintLine(Indented(text));
}

void BlankRow(PageSink& pages) {
    Row(pages, " ");
}

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

constexpr BandColumns kPrintColumns{"  @@@@@ x ", " @@@@@@@@"};

/// Prints the two rows of a band: CW with the radio, SSB with the totals of the band and the antenna.
void PrintBand(PageSink& pages, const PaperContext& context, const Tally& tally, std::size_t bandNumber) {
    const Equipment& equipment = context.equipment[bandNumber];
    Row(pages, BandRow(kPrintColumns, bandNumber, " CW  ", tally.CW(bandNumber)) + Blanks(29) + equipment.radio);
    const LogSum& band = tally.band[bandNumber];
    Row(pages, BandRow(kPrintColumns, bandNumber, " SSB ", tally.SSB(bandNumber)) + InTemplate("  @@@@@ x ", band.Mults) +
                   InTemplate("@@@@@@ = ", band.Points) + InTemplate("@@@@@@@@@", band.Score) + " " + equipment.antenna);
    BlankRow(pages);
}

void PrintPhone(PageSink& pages, const PaperContext& context) {
    pages.PrintPart(Indented(kPhoneLabel));
    // If there is no telephone number, this only ends the line.
    pages.PrintLine(GivenPhone(context));
}

}  // namespace

void PrintSheet(PageSink& pages, const PaperContext& context, const Tally& tally) {
    Row(pages, kSheetTitle);
    BlankRow(pages);
    Row(pages, "Kaldesignal: " + context.call + Blanks(10) + "Kategori: " + context.contestClass + Blanks(14) +
                   "Antal logsider: " + NumberText(pages.Page()));
    BlankRow(pages);
    Row(pages, "Navn: " + tally.name);
    BlankRow(pages);
    Row(pages, kOperatorsLabel);
    BlankRow(pages);
    Row(pages, tally.SortedOperators());
    BlankRow(pages);
    Row(pages, "            QSOs                        Band   Total   Total    Total     Stn/Ant");
    Row(pages, "Bånd        -dubs  Mults x Points =     score  Mult  x Points = Bandscore"_t);
    BlankRow(pages);
    for (std::size_t bandNumber = kBandCount; bandNumber-- > 0;) PrintBand(pages, context, tally, bandNumber);
    Row(pages, "Total:     " + InTemplate("@@@@@", tally.TotalQSOs) + Blanks(30) + InTemplate("@@@@@@ x ", tally.Total.Mults) +
                   InTemplate("@@@@@@ = ", tally.Total.Points) + InTemplate("@@@@@@@@@", tally.Total.Score));
    BlankRow(pages);
    Row(pages, "Ansvarshavende/Formand:");
    BlankRow(pages);
    BlankRow(pages);
    PrintPhone(pages, context);
}

}  // namespace vatro
