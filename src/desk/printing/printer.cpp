// SPDX-License-Identifier: MIT
#include "printing/printer.h"

#include "codepage.h"
#include "papers/layout.h"
#include "papers/printing.h"
#include "platform.h"
#include "printing/paper_files.h"
#include "printing/progress.h"
#include "printing/sheets.h"
#include "printing/surface_pages.h"

namespace vatro {

namespace {

/// Title of the progress window.
constexpr std::string_view kPrintTitle = "Udskriv log";

}  // namespace

void ChoosePrinter() {
    try {
        platform().dialogs.SetUpPrinter();
    } catch (const RunTimeError& error) {
        if (error.Which() != Failure::Cancelled) throw;
    }
}

std::string LogJobName(const LogId& log) {
    return "Log " + BandAndMode(log.band, log.mode);
}

void RunPrintJob(std::string_view name, const std::function<void(PageSurface&)>& paper) {
    PageSurface& surface = platform().printer;
    surface.NameJob(std::string(name).append(1, ' ').append(FormatDate(platform().clock.Now(), "yyyy")));
    paper(surface);
    surface.EndDoc();
}

void PrintLog(PageSurface& surface, const LogId& log) {
    ShowProgress(kPrintTitle);
    AddProgress(BandAndMode(log.band, log.mode));
    const PaperContext context = CurrentPaperContext();
    SurfacePages pages(surface);
    bool open = false;
    try {
        FileLines lines = OpenLog(log);
        open = true;
        PrintHoved(pages, context, log.band, log.mode);
        PrintKrop(lines, pages, context, log);
        PrintFod(pages, context);
        CloseLog();
    } catch (const RunTimeError&) {
        if (open) CloseLog();
    }
}

void PrintMultCheck(PageSurface& surface) {
    ShowProgress(kPrintTitle);
    AddProgress(kMultiplierStep);
    const PaperContext context = CurrentPaperContext();
    SurfacePages pages(surface);
    PrintHoved(pages, context, kMultiplierHeading.band, kMultiplierHeading.mode);
    LogFiles logs;
    PrintMult(pages, context, CollectAllMultipliers(logs));
    PrintFod(pages, context);
}

void PrintSummary(PageSurface& surface) {
    ShowProgress(kPrintTitle);
    AddProgress("Summary");
    const PaperContext context = CurrentPaperContext();
    SurfacePages pages(surface);
    const Tally tally = CurrentTally();
    PrintHoved(pages, context, "Summary", {});
    PrintSheet(pages, context, tally);
    PrintFod(pages, context);
}

void PrintUkendt(PageSurface& surface) {
    ShowProgress(kPrintTitle);
    AddProgress("Ukendte præfixer"_t);
    const PaperContext context = CurrentPaperContext();
    SurfacePages pages(surface);
    bool open = false;
    try {
        FileLines lines = OpenInLogLibrary("ukendt.txt");
        open = true;
        PrintHoved(pages, context, "ukendt", {});
        PrintUnknownLines(lines, pages, context);
        CloseLog();
        PrintFod(pages, context);
    } catch (const RunTimeError&) {
        if (open) CloseLog();
        MsgBox("Der er ingen ukendte præfixer."_t);
    }
}

void PrintAll(PageSurface& surface) {
    for (const LogId& log : kPaperOrder) PrintLog(surface, log);
    PrintMultCheck(surface);
    PrintSummary(surface);
}

}  // namespace vatro
