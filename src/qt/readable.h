// SPDX-License-Identifier: MIT
//
// Colours of text that can be read on their ground.
#pragma once

#include <QColor>

namespace vatro {

/// The contrast that small text needs, from 1 for the same colour to 21 for black and white.
inline constexpr double kReadable = 4.5;

/// Returns `ink`, or, if it has too little contrast to `ground`, a lighter or darker shade of it.
QColor ReadableOn(const QColor& ground, const QColor& ink);

}  // namespace vatro
