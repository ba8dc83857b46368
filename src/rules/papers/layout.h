// SPDX-License-Identifier: MIT
//
// What the papers have alike to look at: the rows of a log with its totals, as sheets, page and printer show them.
//
//   sheet columns, from 0
//    0- 6  blank          16-85  columns 1 to 70 of the log line, so that the points stand at 56 and 57
//    7-14  date           15     blank
#pragma once

#include <string>
#include <string_view>

#include "codepage.h"
#include "papers/logs.h"

namespace vatro {

using namespace literals;

inline constexpr std::string_view kIndryk = "       ";
/// Over the rows of contacts, behind kIndryk.
inline constexpr std::string_view kKolonner = "  Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode"_t;
inline constexpr std::string_view kDenneSide = "Ialt denne side:";
inline constexpr std::string_view kAkkumuleret = "Ialt akkumuleret:";

/// The text behind kIndryk.
std::string Indrykket(std::string_view tekst);
/// Columns 72 to 79 of a line and its columns 1 to 70, indented.
std::string Kontaktrække(std::string_view linje);

/// Templates of a row of totals. The label is filled with blanks up to the points.
struct IaltForm {
    std::size_t label;
    std::string_view point;
    std::string_view mult;
    std::string_view score;
};
/// As a file has it; the printer's is narrower.
inline constexpr IaltForm kIaltFil{45, "@@@@@@", "@@@@@     ", "@@@@@@@@"};

/// A row of totals, indented.
std::string Ialtrække(const IaltForm& form, std::string_view label, const LogSum& sum);

/// The four figures of this year by the clock.
std::string Årstal();
/// "Fieldday log for ", call and year.
std::string LogTitel();
/// ", (Vatro version 1.0.0)".
std::string VersionMærke();
/// "10m CW", also of a heading that is no band and mode.
std::string BåndOgMode(std::string_view bånd, std::string_view mode);

/// Lays a log out, line by line from the log file that is open, 50 lines a page with sums below. Notes take a place on the page
/// without showing.
class LogPapir {
public:
    virtual ~LogPapir() = default;
    /// Reads the log to its end. Ends with the sums of the last page and of the log, also for a log without a line.
    void Krop();

protected:
    static constexpr int kLinjerPrSide = 50;
    /// Before each line; `LineCount` lines have been read.
    virtual void FørLinje(int LineCount) { static_cast<void>(LineCount); }
    virtual void Række(std::string_view tekst) = 0;
    virtual const IaltForm& Ialt() const = 0;
    /// After the sums of a full page.
    virtual void NySide() = 0;

private:
    void LukSide(LogSum& side, LogSum& ialt);
};

}  // namespace vatro
