// SPDX-License-Identifier: MIT
#include "scene_pages.h"

#include <array>
#include <charconv>
#include <utility>

#include "codepage.h"
#include "control_names.h"
#include "scene_font.h"

namespace vatro {

namespace {

/// Size of an A4 page, in points.
constexpr double kWidth = 595;
constexpr double kHeight = 842;

std::string OneDecimal(double number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, 1).ptr;
    return {text.data(), end};
}

}  // namespace

OutputLines ScenePages::TakeJobs() {
    return std::exchange(jobs_, {});
}

double ScenePages::Width() const {
    return kWidth;
}

double ScenePages::Height() const {
    return kHeight;
}

double ScenePages::TextWidth(std::string_view text, const Font& font) const {
    return SceneTextWidth(text, font);
}

double ScenePages::TextHeight(const Font& font) const {
    return SceneTextHeight(font);
}

void ScenePages::BeginJob() {
    job_ = {"job"};
    page_ = 0;
}

void ScenePages::BeginPage() {
    job_.push_back("page " + std::to_string(++page_));
}

void ScenePages::Place(double x, double y, const Font& font, std::string_view text) {
    if (page_ == 0) BeginPage();
    job_.push_back(OneDecimal(x) + " " + OneDecimal(y) + " " + ToUtf8(font.name) + " " + Shortest(font.size) + " " + StyleOf(font) + " " +
                   Quoted(text));
}

void ScenePages::NextPage() {
    if (page_ == 0) BeginPage();
    BeginPage();
}

void ScenePages::EndJob() {
    jobs_.insert(jobs_.end(), job_.begin(), job_.end());
}

}  // namespace vatro
