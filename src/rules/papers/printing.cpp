// SPDX-License-Identifier: MIT
#include "papers/printing.h"
#include "frame/state.h"

#include <string>

#include "frame/band_mode.h"
#include "frame/station.h"
#include "numbers.h"
#include "page.h"
#include "papers/layout.h"
#include "papers/weekend.h"
#include "platform.h"
#include "printing/progress.h"

namespace vatro {

namespace {

constexpr std::string_view kOverskriftFont = "Arial";
constexpr std::string_view kBrødtekstFont = "Courier New";
constexpr double kBrødtekst = 10;

/// The printer's rows are as long as those of a file, with their figures elsewhere.
constexpr IaltForm kIaltPrint{46, "@@@@@", "      @@@@", "      @@@@@@@"};

class LogUdskrift : public LogPapir {
public:
    LogUdskrift(PageSurface& surface, const LogId& log) : surface_(surface), log_(log) {}

private:
    void FørLinje(int LineCount) override {
        constexpr int kGruppe = 10;
        if (LineCount % kGruppe == 0) surface_.Print(" ");
    }
    void Række(std::string_view tekst) override { surface_.Print(tekst); }
    const IaltForm& Ialt() const override { return kIaltPrint; }
    void NySide() override {
        PrintFod(surface_);
        surface_.NewPage();
        PrintHoved(surface_, log_.band, log_.mode);
    }
    PageSurface& surface_;
    LogId log_;
};

void PrintUkendteLinjer(PageSurface& surface) {
    constexpr int kGruppe = 10;
    constexpr int kLinjerPrSide = 50;
    Files& filer = platform().files;
    for (int antal = 0; !filer.EndOfFile(kLogFil); ++antal) {
        if (antal % kGruppe == 0) surface.Print();
        const std::string linje = filer.LineInput(kLogFil);
        // Before the line is printed, so that the first page holds 49 lines: meant so.
        if (antal % kLinjerPrSide == kLinjerPrSide - 1) {
            PrintFod(surface);
            surface.NewPage();
            PrintHoved(surface, "ukendt", {});
        }
        surface.Print(Indrykket(linje));
    }
}

}  // namespace

void VælgPrinter() {
    try {
        platform().dialogs.SetUpPrinter();
    } catch (const RunTimeError& fejl) {
        if (fejl.Which() != Failure::Cancelled) throw;
    }
}

void Udskriv(const std::function<void(PageSurface&)>& papir) {
    PageSurface& surface = platform().printer;
    papir(surface);
    surface.EndDoc();
}

void PrintHoved(PageSurface& surface, std::string_view bånd, std::string_view mode) {
    Font& font = surface.font;
    font.name = kOverskriftFont;
    font.size = 36;
    font.underline = true;
    surface.PrintCentred(LogTitel());
    font.underline = false;
    font.size = 18;
    font.bold = true;
    surface.PrintCentred(BåndOgMode(bånd, mode));
    font.size = kBrødtekst;
    font.name = kBrødtekstFont;
    surface.Print();
    if (bånd != "Summary" && bånd != "ukendt" && bånd != "Multiplier") surface.Print(Indrykket(kKolonner));
    font.bold = false;
}

void PrintFod(PageSurface& surface) {
    surface.font.name = kOverskriftFont;
    surface.font.size = 11;
    surface.currentY = surface.ScaleHeight() - surface.TextHeight();
    surface.PrintCentred("Side " + NumberText(surface.Page()) + VersionMærke());
}

void PrintLog(PageSurface& surface, const LogId& log) {
    Find1Weekend();
    VisForløb(kPrintTitel);
    TilføjForløb(BåndOgMode(log.band, log.mode));
    try {
        ÅbnLog(log);
    } catch (const RunTimeError&) {
        return;
    }
    try {
        PrintHoved(surface, log.band, log.mode);
        PrintKrop(surface, log);
        PrintFod(surface);
        platform().files.Close(kLogFil);
    } catch (const RunTimeError&) {
        platform().files.Close(kLogFil);
    }
}

void PrintKrop(PageSurface& surface, const LogId& log) {
    surface.font.name = kBrødtekstFont;
    surface.font.size = kBrødtekst;
    LogUdskrift(surface, log).Krop();
}

void PrintMultCheck(PageSurface& surface) {
    VisForløb(kPrintTitel);
    TilføjForløb(kMultTrin);
    PrintHoved(surface, kMultHoved.band, kMultHoved.mode);
    MultTable table;
    MultCount count{};
    SamlAlleMult(table, count);
    PrintMult(surface, table, count);
    PrintFod(surface);
}

void PrintMult(PageSurface& surface, const MultTable& table, const MultCount& count) {
    const auto nySide = [&surface] {
        PrintFod(surface);
        surface.NewPage();
        PrintHoved(surface, kMultHoved.band, kMultHoved.mode);
    };
    OpsætMult(table, count, {[&surface](std::string_view linje) { surface.Print(linje); }, nySide});
}

void PrintUkendt(PageSurface& surface) {
    VisForløb(kPrintTitel);
    TilføjForløb("Ukendte præfixer"_t);
    bool åben = false;
    try {
        platform().files.Open(kLogFil, PathIn(desk().gsLogLib, "ukendt.txt"), FileMode::Input);
        åben = true;
        PrintHoved(surface, "ukendt", {});
        PrintUkendteLinjer(surface);
        platform().files.Close(kLogFil);
        PrintFod(surface);
    } catch (const RunTimeError&) {
        if (åben) platform().files.Close(kLogFil);
        MsgBox("Der er ingen ukendte præfixer."_t);
    }
}

void PrintAlt(PageSurface& surface) {
    for (const LogId& log : kPapirOrden) PrintLog(surface, log);
    PrintMultCheck(surface);
    PrintSummary(surface);
}

}  // namespace vatro
