// SPDX-License-Identifier: MIT
//
// Fonts of a scenario: every character is as wide as the next, whatever the font.
#pragma once

#include <string>
#include <string_view>

#include "font.h"

namespace vatro {

/// Width and height of a text, in points.
double SceneTextWidth(std::string_view text, const Font& font);
double SceneTextHeight(const Font& font);

/// A number with as few decimals as it has.
std::string Shortest(double number);
/// "b", "u", "bu" or "-".
std::string StyleOf(const Font& font);

}  // namespace vatro
