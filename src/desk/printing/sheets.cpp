// SPDX-License-Identifier: MIT
#include "printing/sheets.h"

#include "papers/layout.h"
#include "papers/log_sheets.h"
#include "papers/mult_check.h"
#include "papers/summary.h"
#include "printing/paper_files.h"
#include "printing/progress.h"

namespace vatro {

namespace {

constexpr std::string_view kMakeTitle = "Dan log";

}  // namespace

void Danlog(const LogId& log) {
    ShowProgress(kMakeTitle);
    AddProgress(BandAndMode(log.band, log.mode));
    const PaperContext context = CurrentPaperContext();
    try {
        // The log is opened first, so that without one an earlier sheet is kept.
        FileLines lines = OpenLog(log);
        FileSink sheet = OpenPaper(LogSheetName(log));
        DanHoved(sheet, context, log.band, log.mode);
        DanKrop(lines, sheet, context, log);
        CloseLog();
        ClosePaper();
    } catch (const RunTimeError&) {
        return;
    }
}

void DanMultCheck() {
    ShowProgress(kMakeTitle);
    AddProgress(kMultiplierStep);
    const PaperContext context = CurrentPaperContext();
    FileSink sheet = OpenPaper("Mult.txt");
    DanHoved(sheet, context, kMultiplierHeading.band, kMultiplierHeading.mode);
    LogFiles logs;
    DanMult(sheet, context, CollectAllMultipliers(logs));
    ClosePaper();
}

void DanSummary() {
    ShowProgress(kMakeTitle);
    AddProgress("Summary");
    const PaperContext context = CurrentPaperContext();
    const Tally tally = CurrentTally();
    FileSink sheet = OpenPaper("Summary.txt");
    WriteSummary(sheet, context, tally);
    ClosePaper();
}

void MakeAllPapers() {
    for (const LogId& log : kPaperOrder) Danlog(log);
    DanMultCheck();
    DanSummary();
}

}  // namespace vatro
