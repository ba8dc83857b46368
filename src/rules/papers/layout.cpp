// SPDX-License-Identifier: MIT
#include "papers/layout.h"

#include "columns.h"
#include "log/contact_line.h"
#include "numbers.h"

namespace vatro {

namespace {

/// Number of columns of a log line that a paper shows after the date.
constexpr std::size_t kShownWidth = 70;

std::string YearText(const PaperContext& context) {
    return FormatDate(context.now, "yyyy");
}

}  // namespace

std::string Indented(std::string_view text) {
    std::string row;
    row.reserve(kIndent.size() + text.size());
    return row.append(kIndent).append(text);
}

std::string ContactRow(std::string_view line) {
    std::string row;
    row.reserve(kIndent.size() + kDate.width + 1 + kShownWidth);
    return row.append(kIndent).append(kDate.Of(line)).append(1, ' ').append(Columns(line, 1, kShownWidth));
}

std::string TotalRow(const TotalForm& form, std::string_view label, const LogSum& sum) {
    std::string row = Indented(LeftAligned(label, form.label));
    return row.append(InTemplate(form.points, sum.Points))
        .append(InTemplate(form.mults, sum.Mults))
        .append(InTemplate(form.score, sum.Score));
}

std::string LogTitle(const PaperContext& context) {
    return "Fieldday log for " + context.call + " " + YearText(context);
}

std::string VersionMark(const PaperContext& context) {
    return ", (Vatro version " + context.version + ")";
}

std::string BandAndMode(std::string_view band, std::string_view mode) {
    return std::string(band).append(1, ' ').append(mode);
}

std::string NameWithYear(const PaperContext& context, std::string_view extension) {
    return ("vatro" + YearText(context)).append(extension);
}

void LogPaper::LayOut(LineSource& log) {
    LogSum page;
    LogSum total;
    for (int lineCount = 0; !log.AtEnd(); ++lineCount) {
        BeforeLine(lineCount);
        const std::string line = log.Next();
        if (!IsNoteLine(line)) Row(ContactRow(line));
        page.CountLine(line);
        if (lineCount % kLinesPerPage == kLinesPerPage - 1) {
            total = ClosePage(page, total);
            page = {};
            BeginPage();
        }
    }
    ClosePage(page, total);
}

void LogPaper::WriteTotals(std::string_view label, const LogSum& sum) {
    Row(" ");
    Row(TotalRow(Totals(), label, sum));
}

LogSum LogPaper::ClosePage(LogSum page, LogSum total) {
    page.ComputeScore();
    WriteTotals(kThisPage, page);
    total.Add(page);
    total.ComputeScore();
    WriteTotals(kAccumulated, total);
    return total;
}

}  // namespace vatro
