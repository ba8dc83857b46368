// SPDX-License-Identifier: MIT
//
// The layout that all papers share: the rows of a log with its totals, on sheets, web page and printer.
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
/// The column names above the rows of contacts, without kIndent.
inline constexpr std::string_view kColumnNames = "  Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode"_t;
inline constexpr std::string_view kThisPage = "Ialt denne side:";
inline constexpr std::string_view kAccumulated = "Ialt akkumuleret:";

/// Returns kIndent followed by the text.
std::string Indented(std::string_view text);
/// Returns the row of a contact: columns 72 to 79 of its line (the date), then columns 1 to 70, indented.
std::string ContactRow(std::string_view line);

/// The format of a row of totals: the width to which the label is padded, and the templates of the numbers.
struct TotalForm {
    std::size_t label;
    std::string_view points;
    std::string_view mults;
    std::string_view score;
};
/// The format in files; the printer has its own.
inline constexpr TotalForm kFileTotals{45, "@@@@@@", "@@@@@     ", "@@@@@@@@"};

/// Formats a row of totals, indented.
std::string TotalRow(const TotalForm& form, std::string_view label, const LogSum& sum);

/// "Fieldday log for " with call and year.
std::string LogTitle(const PaperContext& context);
/// ", (Vatro version 1.0.0)".
std::string VersionMark(const PaperContext& context);
/// "10m CW". Also joins the two words of headings that are not a band and a mode.
std::string BandAndMode(std::string_view band, std::string_view mode);
/// A file name with the year in which the file is made: "vatro2026.htm".
std::string NameWithYear(const PaperContext& context, std::string_view extension);

/// Lays a log out in pages of 50 lines with totals below. Notes are not shown but count as lines of the page.
class LogPaper {
public:
    virtual ~LogPaper() = default;
    /// Reads the log to its end. Finishes with the totals of the last page and of the log, even for an empty log.
    void LayOut(LineSource& log);

protected:
    static constexpr int kLinesPerPage = 50;
    /// Called before each line; `lineCount` lines have been read so far.
    virtual void BeforeLine(int lineCount) { static_cast<void>(lineCount); }
    virtual void Row(std::string_view text) = 0;
    virtual const TotalForm& Totals() const = 0;
    /// Called after the totals of a full page.
    virtual void BeginPage() = 0;

private:
    void WriteTotals(std::string_view label, const LogSum& sum);
    /// Writes the totals of a page and the running totals of the log: `total` plus `page`, which are returned.
    LogSum ClosePage(LogSum page, LogSum total);
};

}  // namespace vatro
