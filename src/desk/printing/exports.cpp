// SPDX-License-Identifier: MIT
#include "printing/exports.h"

#include <optional>

#include "frame/log_file.h"
#include "papers/adif.h"
#include "papers/html_page.h"
#include "papers/layout.h"
#include "printing/paper_files.h"
#include "printing/progress.h"

namespace vatro {

namespace {

/// Opens the log; nothing if it cannot be opened.
std::optional<FileLines> TryToOpen(const LogId& log) {
    try {
        return OpenLog(log);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void ExportAll() {
    FileSink file = OpenPaper(NameWithYear(CurrentPaperContext(), ".adi"));
    WriteAdifHead(file);
    ShowProgress("Dan ADIF");
    for (const LogId& log : kPaperOrder) DanAdif(file, log);
    ClosePaper();
}

}  // namespace

void MakeHtmlPage() {
    const PaperContext context = CurrentPaperContext();
    FileSink page = OpenPaper(NameWithYear(context, ".htm"));
    WriteHtmlTop(page, context);
    ShowProgress("Dan html");
    for (const LogId& log : kPaperOrder) DanHtm(page, log);
    DanHtmSummary(page, context, CurrentTally());
    WriteHtmlEnd(page);
    ClosePaper();
}

void DanHtm(LineSink& page, const LogId& log) {
    AddProgress(BandAndMode(log.band, log.mode));
    DanHtmHoved(page, log);
    if (auto lines = TryToOpen(log)) DanHtmKrop(*lines, page);
    WriteHtmlSectionEnd(page);
    CloseLog();
}

void ExportAdif() {
    try {
        ExportAll();
    } catch (const RunTimeError& error) {
        if (error.Which() == Failure::PathNotFound) TjekLogLib();
    }
}

void DanAdif(LineSink& file, const LogId& log) {
    AddProgress(BandAndMode(log.band, log.mode));
    auto lines = TryToOpen(log);
    if (!lines) return;
    try {
        DanAdifKrop(*lines, file, log);
    } catch (const RunTimeError&) {
        // Close the log even so, because logging the next contact needs its file number.
        CloseLog();
        throw;
    }
    CloseLog();
}

}  // namespace vatro
