// SPDX-License-Identifier: MIT
//
// What all papers lay out in the same way: the rows of a log with its totals, as sheets, web page and printer show them.
//
//   sheet columns, from 0
//    0- 6  blank          16-85  columns 1 to 70 of the log line, so that the points stand at 56 and 57
//    7-14  date           15     blank
#pragma once

#include <string>
#include <string_view>

#include "codepage.h"
#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

using namespace literals;

inline constexpr std::string_view kIndent = "       ";
/// Over the rows of contacts, behind kIndent.
inline constexpr std::string_view kColumnNames = "  Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode"_t;
inline constexpr std::string_view kThisPage = "Ialt denne side:";
inline constexpr std::string_view kAccumulated = "Ialt akkumuleret:";

/// The text behind kIndent.
std::string Indented(std::string_view text);
/// Columns 72 to 79 of a line and its columns 1 to 70, indented.
std::string ContactRow(std::string_view line);

/// Templates of a row of totals. The label is filled with blanks up to the points.
struct TotalForm {
    std::size_t label;
    std::string_view points;
    std::string_view mults;
    std::string_view score;
};
/// As a file has it; the printer's is narrower.
inline constexpr TotalForm kFileTotals{45, "@@@@@@", "@@@@@     ", "@@@@@@@@"};

/// A row of totals, indented.
std::string TotalRow(const TotalForm& form, std::string_view label, const LogSum& sum);

/// "Fieldday log for ", call and year.
std::string LogTitle(const PaperContext& context);
/// ", (Vatro version 1.0.0)".
std::string VersionMark(const PaperContext& context);
/// "10m CW", also of a heading that is no band and mode.
std::string BandAndMode(std::string_view band, std::string_view mode);
/// "vatro2026.htm": a file named after the year in which it is made.
std::string NameWithYear(const PaperContext& context, std::string_view extension);

/// Lays a log out in pages of 50 lines with sums below. Notes take a place on the page without showing.
class LogPaper {
public:
    virtual ~LogPaper() = default;
    /// Reads the log to its end. Ends with the sums of the last page and of the log, also for a log without a line.
    void LayOut(LineSource& log);

protected:
    static constexpr int kLinesPerPage = 50;
    /// Before each line; `lineCount` lines have been read.
    virtual void BeforeLine(int lineCount) { static_cast<void>(lineCount); }
    virtual void Row(std::string_view text) = 0;
    virtual const TotalForm& Totals() const = 0;
    /// After the sums of a full page.
    virtual void BeginPage() = 0;

private:
    void WriteTotals(std::string_view label, const LogSum& sum);
    /// Writes the sums of a page and of the log, which is `total` with the page in it. Gives the latter.
    LogSum ClosePage(LogSum page, LogSum total);
};

}  // namespace vatro
