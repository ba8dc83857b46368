// SPDX-License-Identifier: MIT
#include "readable.h"

#include <algorithm>
#include <cmath>

namespace vatro {

namespace {

/// The share of white or black that is mixed into a colour from one attempt to the next.
constexpr double kStep = 0.05;

/// The relative brightness of a colour on a screen.
double Brightness(const QColor& colour) {
    const auto linear = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, bright] = std::minmax({Brightness(one), Brightness(other)});
    return (bright + 0.05) / (dark + 0.05);
}

/// `share` of `other` in `colour`.
QColor Mixed(const QColor& colour, const QColor& other, double share) {
    const auto part = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return {part(colour.red(), other.red()), part(colour.green(), other.green()), part(colour.blue(), other.blue())};
}

}  // namespace

QColor ReadableOn(const QColor& ground, const QColor& ink) {
    const QColor end = Contrast(ground, Qt::white) > Contrast(ground, Qt::black) ? Qt::white : Qt::black;
    for (double share = 0; share < 1; share += kStep)
        if (const QColor shade = Mixed(ink, end, share); Contrast(ground, shade) >= kReadable) return shade;
    return end;
}

}  // namespace vatro
