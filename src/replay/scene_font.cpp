// SPDX-License-Identifier: MIT
#include "scene_font.h"

#include <array>
#include <charconv>

namespace vatro {

double SceneTextWidth(std::string_view text, const Font& font) {
    return 0.6 * font.size * static_cast<double>(text.size());
}

double SceneTextHeight(const Font& font) {
    return 1.2 * font.size;
}

std::string Shortest(double number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

std::string StyleOf(const Font& font) {
    const std::string style = std::string(font.bold ? "b" : "") + (font.underline ? "u" : "");
    return style.empty() ? "-" : style;
}

}  // namespace vatro
