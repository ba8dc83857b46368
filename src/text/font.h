// SPDX-License-Identifier: MIT
//
// A font for text in a window or on paper.
#pragma once

#include <string>

namespace vatro {

/// A font as the program asks for it. The front or the printer chooses the nearest one that it has.
struct Font {
    /// Empty for the default font of the front or the printer.
    std::string name;
    /// In points; 0 for the default size of the named font.
    double size = 0;
    bool bold = false;
    bool underline = false;
    friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace vatro
