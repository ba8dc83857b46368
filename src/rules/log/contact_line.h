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
// The columns between are blank. A line that begins with "NOTE: " is no contact but free text. Lines of earlier years end
// before the mode: a column beyond the end of a line is empty.
#pragma once

#include <string>
#include <string_view>

#include "columns.h"

namespace vatro {

/// Columns of a field.
struct Felt {
    std::size_t fra;
    std::size_t bredde;
    constexpr std::string_view Af(std::string_view linje) const { return Columns(linje, fra, bredde); }
    constexpr std::string_view TrimmetAf(std::string_view linje) const { return Trim(Af(linje)); }
};

inline constexpr Felt kTid{1, 5};
inline constexpr Felt kCall{7, 15};
inline constexpr Felt kRstSendt{23, 3};
inline constexpr Felt kNrSendt{27, 4};
inline constexpr Felt kRstModtaget{32, 3};
inline constexpr Felt kNrModtaget{36, 4};
inline constexpr Felt kPoint{41, 2};
inline constexpr Felt kMultiplier{44, 10};
inline constexpr Felt kOperatør{55, 6};
/// One column more than is written: what readers of the operator take.
inline constexpr Felt kOperatørLæst{kOperatør.fra, kOperatør.bredde + 1};
inline constexpr Felt kQsl{62, 3};
inline constexpr Felt kQsoMode{66, 5};
inline constexpr Felt kDato{72, 8};

inline constexpr std::string_view kNoteMærke = "NOTE: ";
inline constexpr std::string_view kDupeMærke = "-DUPE-";

/// Whether the text begins with the mark of a note, in any case.
bool ErNote(std::string_view tekst);

/// What a contact line is made of, each as text of its field.
struct Qso {
    std::string tid;
    std::string call;
    std::string rstSendt;
    std::string nrSendt;
    std::string rstModtaget;
    std::string nrModtaget;
    int point = 0;
    std::string multiplier;
    std::string operatør;
    bool qsl = false;
    std::string qsoMode;
    std::string dato;
};

/// The line of a contact in a log of this mode: in an SSB log a report has two figures and a blank. Call, multiplier, operator
/// and QSO mode are cut at their columns or filled up to them; the others must fit theirs. A serial number above 9999 shifts all
/// that follows.
std::string QsoLine(const Qso& qso, std::string_view logMode);

}  // namespace vatro
