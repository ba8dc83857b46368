// SPDX-License-Identifier: MIT
//
// The colours of what must be noticed, in the lamps, the status bar and the call field. Whoever uses them shows a sign or words too,
// because at night they are all the same red.
#pragma once

#include <QColor>

class QPalette;

namespace vatro {

enum class Signal {
    /// Something is wrong, or must not be done.
    Wrong,
    /// A station that has been worked already. The window of the next number shows it in the same colours.
    Duplicate,
    /// Look at this.
    Notice,
    /// Good news.
    Gain,
    /// Somebody known.
    Known,
};

/// The text on `ground` is drawn with `ink`.
struct SignalColours {
    QColor ground;
    QColor ink;
};

/// The colours for this signal in the scheme of this palette.
SignalColours ColoursOf(Signal signal, const QPalette& palette);

/// Whether the palette is that of a scheme for the night, in which nothing is brighter than its text.
bool IsNight(const QPalette& palette);

/// The text colour of the palette, as faint as it can be while it still differs clearly from the background of the window.
QColor FadedInk(const QPalette& palette);

/// From 1 for equal colours to 21 for black and white, as the web's accessibility guidelines compute it.
double Contrast(const QColor& one, const QColor& other);

/// A colour between these two; 0 is the first and 1 the second.
QColor Mixed(const QColor& one, const QColor& other, double part);

}  // namespace vatro
