// SPDX-License-Identifier: MIT
//
// The fonts of a scenario: all characters have the same width, in every font.
#pragma once

#include <string>
#include <string_view>

#include "font.h"

namespace vatro {

/// Width and height of a text, in points.
double SceneTextWidth(std::string_view text, const Font& font);
double SceneTextHeight(const Font& font);

/// The number with as few decimals as needed.
std::string Shortest(double number);
/// "b", "u", "bu" or "-" for bold, underlined, both or neither.
std::string StyleOf(const Font& font);

}  // namespace vatro
