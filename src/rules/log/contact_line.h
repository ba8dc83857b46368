// SPDX-License-Identifier: MIT
//
// The contact line: one contact of a log, 79 columns, counted from 1.
//
//    1-5   UTC time "Hh:Nn"                41-42  points, right-aligned
//    7-21  call as typed                   44-53  multiplier: the country's prefix, "-DUPE-" or blank
//   23-25  report sent                     55-60  operator
//   26     "-"                             62-64  "QSL" or blank
//   27-30  serial number sent              66-70  QSO mode
//   32-34  report received                 72-79  UTC date "dd-mm-yy"
//   35     "-"
//   36-39  serial number received
//
// All other columns are blank. A line that begins with "NOTE: " is a note, free text instead of a contact. Lines written by earlier
// versions end before the mode; a column beyond the end of a line reads as empty.
#pragma once

#include <string>
#include <string_view>

#include "columns.h"

namespace vatro {

/// The columns of a field.
struct Field {
    std::size_t from;
    std::size_t width;
    constexpr std::string_view Of(std::string_view line) const { return Columns(line, from, width); }
    constexpr std::string_view TrimmedOf(std::string_view line) const { return Trim(Of(line)); }
};

inline constexpr Field kTime{1, 5};
inline constexpr Field kCall{7, 15};
inline constexpr Field kReportSent{23, 3};
inline constexpr Field kNumberSent{27, 4};
inline constexpr Field kReportReceived{32, 3};
inline constexpr Field kNumberReceived{36, 4};
inline constexpr Field kPoint{41, 2};
inline constexpr Field kMultiplier{44, 10};
inline constexpr Field kOperator{55, 6};
/// The operator field as it is read by the correction and by most papers: one column wider than the field that is written.
inline constexpr Field kOperatorAsRead{kOperator.from, kOperator.width + 1};
inline constexpr Field kQsl{62, 3};
inline constexpr Field kQsoMode{66, 5};
inline constexpr Field kDate{72, 8};

inline constexpr std::string_view kNoteMark = "NOTE: ";
inline constexpr std::string_view kDupeMark = "-DUPE-";

/// Whether the text begins with the note mark "NOTE: ", without regard to case.
bool IsNote(std::string_view text);

/// The parts of a contact line, each as the text of its field.
struct Contact {
    std::string time;
    std::string call;
    std::string reportSent;
    std::string numberSent;
    std::string reportReceived;
    std::string numberReceived;
    int point = 0;
    std::string multiplier;
    std::string operatorCall;
    bool qsl = false;
    std::string qsoMode;
    std::string date;
};

/// Formats a contact for a log of this mode; in an SSB log a report has two digits and a blank. Call, multiplier, operator and QSO mode
/// are padded or cut to the width of their fields; the other texts must fit their fields. A serial number above 9999 shifts the rest of
/// the line to the right. Do not cut it: it would be wrong without anybody seeing it (docs/rules.md).
std::string QsoLine(const Contact& contact, std::string_view logMode);

}  // namespace vatro
