// SPDX-License-Identifier: MIT
//
// What a text is written in, in a window or on paper.
#pragma once

#include <string>

namespace vatro {

struct Font {
    /// Empty for the font that the front or the printer uses by itself.
    std::string name;
    /// In points; 0 for the size that goes with the name.
    double size = 0;
    bool bold = false;
    bool underline = false;
    friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace vatro
