// SPDX-License-Identifier: MIT
#include "readable.h"

#include "signal_colours.h"

namespace vatro {

namespace {

/// The share of white or black that is mixed into a colour from one attempt to the next.
constexpr double kStep = 0.05;

}  // namespace

QColor ReadableOn(const QColor& ground, const QColor& ink) {
    const QColor end = Contrast(ground, Qt::white) > Contrast(ground, Qt::black) ? Qt::white : Qt::black;
    for (double share = 0; share < 1; share += kStep)
        if (const QColor shade = Mixed(ink, end, share); Contrast(ground, shade) >= kReadable) return shade;
    return end;
}

}  // namespace vatro
