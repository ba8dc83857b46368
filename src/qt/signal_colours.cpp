// SPDX-License-Identifier: MIT
#include "signal_colours.h"

#include <QPalette>
#include <cmath>

namespace vatro {

namespace {

/// Below this lightness a background counts as dark.
constexpr int kDark = 128;
/// The text of a dark desktop is lighter than this.
constexpr int kDim = 160;
/// Enough for the outlines of letters; running text needs 4.5.
constexpr double kLeastContrast = 3.2;

double Brightness(const QColor& colour) {
    const auto linear = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < kDark;
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const double a = Brightness(one);
    const double b = Brightness(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

QColor Mixed(const QColor& one, const QColor& other, double part) {
    const auto between = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {between(one.red(), other.red()), between(one.green(), other.green()), between(one.blue(), other.blue())};
}

bool IsNight(const QPalette& palette) {
    return IsDark(palette) && palette.color(QPalette::WindowText).lightness() < kDim;
}

QColor FadedInk(const QPalette& palette) {
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Window);
    constexpr double kFaintest = 0.5;
    constexpr double kStep = 0.05;
    for (double part = kFaintest; part > 0; part -= kStep)
        if (const QColor mixed = Mixed(ink, ground, part); Contrast(mixed, ground) >= kLeastContrast) return mixed;
    return ink;
}

SignalColours ColoursOf(Signal signal, const QPalette& palette) {
    if (IsNight(palette)) return {palette.color(QPalette::WindowText), palette.color(QPalette::Window)};
    const bool dark = IsDark(palette);
    switch (signal) {
        case Signal::Wrong:
            return dark ? SignalColours{QColor(0xff, 0x8a, 0x80), Qt::black} : SignalColours{QColor(0xb0, 0x00, 0x20), Qt::white};
        case Signal::Duplicate:
            return {QColor(0xff, 0x00, 0x00), Qt::black};
        case Signal::Notice:
            return {QColor(0xff, 0xd5, 0x4f), Qt::black};
        case Signal::Gain:
            return dark ? SignalColours{QColor(0x7c, 0xe0, 0x9a), Qt::black} : SignalColours{QColor(0x0b, 0x6b, 0x2e), Qt::white};
        case Signal::Known:
            return dark ? SignalColours{QColor(0x8a, 0xb8, 0xff), Qt::black} : SignalColours{QColor(0x0b, 0x4f, 0xb3), Qt::white};
    }
    return {palette.color(QPalette::Window), palette.color(QPalette::WindowText)};
}

}  // namespace vatro
