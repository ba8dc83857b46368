// SPDX-License-Identifier: MIT
#include "papers/log_sheets.h"

#include "papers/layout.h"

namespace vatro {

namespace {

/// Ends a page: written on a line of its own, it makes a printer begin a new page.
constexpr std::string_view kFormFeed = "\f";

class LogSheets : public LogPaper {
public:
    LogSheets(LineSink& paper, const PaperContext& context, const LogId& log) : paper_(paper), context_(context), log_(log) {}

private:
    void Row(std::string_view text) override { paper_.Write(text); }
    const TotalForm& Totals() const override { return kFileTotals; }
    void BeginPage() override {
        paper_.Write(kFormFeed);
        DanHoved(paper_, context_, log_.band, log_.mode);
    }
    LineSink& paper_;
    const PaperContext& context_;
    LogId log_;
};

}  // namespace

std::string LogSheetName(const LogId& log) {
    return std::string("SM").append(log.band).append(log.mode).append(".txt");
}

void DanHoved(LineSink& paper, const PaperContext& context, std::string_view band, std::string_view mode) {
    paper.Write(Indented(LogTitle(context) + VersionMark(context)));
    paper.Write(Indented(BandAndMode(band, mode)));
    WriteBlank(paper);
    if (band != "Multiplier" && band != "ukendt") paper.Write(Indented(kColumnNames));
}

void DanKrop(LineSource& lines, LineSink& paper, const PaperContext& context, const LogId& log) {
    LogSheets(paper, context, log).LayOut(lines);
}

}  // namespace vatro
