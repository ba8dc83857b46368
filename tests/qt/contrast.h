// SPDX-License-Identifier: MIT
//
// Contrast of colours on the screen.
#pragma once

#include <QRgb>
#include <algorithm>
#include <cmath>

namespace vatro {

/// The relative brightness of a colour.
inline double Brightness(QRgb colour) {
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// From 1 for the same colour to 21 for black and white, as it is usually computed for text on screens.
inline double ContrastOf(QRgb one, QRgb other) {
    const double a = Brightness(one);
    const double b = Brightness(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace vatro
