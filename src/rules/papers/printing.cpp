// SPDX-License-Identifier: MIT
#include "papers/printing.h"

#include <string>

#include "numbers.h"
#include "papers/layout.h"

namespace vatro {

namespace {

constexpr std::string_view kHeadingFont = "Arial";
constexpr std::string_view kBodyFont = "Courier New";
constexpr double kBodySize = 10;

/// The printer's format. Its rows are as long as those in files, but the numbers are in other columns.
constexpr TotalForm kPrintTotals{46, "@@@@@", "      @@@@", "      @@@@@@@"};

void BeginNextPage(PageSink& pages, const PaperContext& context, std::string_view band, std::string_view mode) {
    PrintFod(pages, context);
    pages.NewPage();
    PrintHoved(pages, context, band, mode);
}

class PrintedLog : public LogPaper {
public:
    PrintedLog(PageSink& pages, const PaperContext& context, const LogId& log) : pages_(pages), context_(context), log_(log) {}

private:
    void BeforeLine(int lineCount) override {
        constexpr int kGroup = 10;
        if (lineCount % kGroup == 0) pages_.PrintLine(" ");
    }
    void Row(std::string_view text) override { pages_.PrintLine(text); }
    const TotalForm& Totals() const override { return kPrintTotals; }
    void BeginPage() override { BeginNextPage(pages_, context_, log_.band, log_.mode); }
    PageSink& pages_;
    const PaperContext& context_;
    LogId log_;
};

}  // namespace

void PrintHoved(PageSink& pages, const PaperContext& context, std::string_view band, std::string_view mode) {
    pages.SetFont(kHeadingFont, 36);
    pages.SetUnderline(true);
    pages.PrintCentred(LogTitle(context));
    pages.SetUnderline(false);
    pages.SetFont(kHeadingFont, 18);
    pages.SetBold(true);
    pages.PrintCentred(BandAndMode(band, mode));
    pages.SetFont(kBodyFont, kBodySize);
    pages.EndLine();
    if (band != "Summary" && band != "ukendt" && band != "Multiplier") pages.PrintLine(Indented(kColumnNames));
    pages.SetBold(false);
}

void PrintFod(PageSink& pages, const PaperContext& context) {
    pages.SetFont(kHeadingFont, 11);
    pages.GoToLastLine();
    pages.PrintCentred("Side " + NumberText(pages.Page()) + VersionMark(context));
}

void PrintKrop(LineSource& lines, PageSink& pages, const PaperContext& context, const LogId& log) {
    pages.SetFont(kBodyFont, kBodySize);
    PrintedLog(pages, context, log).LayOut(lines);
}

void PrintMult(PageSink& pages, const PaperContext& context, const Multipliers& multipliers) {
    LayOutMultipliers(multipliers,
                      {[&pages](std::string_view line) { pages.PrintLine(line); },
                       [&pages, &context] { BeginNextPage(pages, context, kMultiplierHeading.band, kMultiplierHeading.mode); }});
}

void PrintUnknownLines(LineSource& lines, PageSink& pages, const PaperContext& context) {
    constexpr int kGroup = 10;
    constexpr int kLinesPerPage = 50;
    for (int count = 0; !lines.AtEnd(); ++count) {
        if (count % kGroup == 0) pages.EndLine();
        const std::string line = lines.Next();
        // The page break comes before the line is printed, so the first page holds 49 lines. Kept so that new prints break where
        // older ones do, for operators who compare them.
        if (count % kLinesPerPage == kLinesPerPage - 1) BeginNextPage(pages, context, "ukendt", {});
        pages.PrintLine(Indented(line));
    }
}

}  // namespace vatro
