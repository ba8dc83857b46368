// SPDX-License-Identifier: MIT
#include "outcome_sign.h"

#include <QPainter>

#include "sign_lines.h"
#include "signal_colours.h"

namespace vatro {

void OutcomeSign::SetGood(bool good) {
    good_ = good;
    update();
}

QSize OutcomeSign::sizeHint() const {
    const int line = fontMetrics().height();
    return {line, line};
}

void OutcomeSign::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const SignalColours colours = ColoursOf(good_ ? Signal::Gain : Signal::Wrong, palette());
    const double size = fontMetrics().height();
    const QRectF chip(0, 0, size, size);
    constexpr double kCorner = 0.2;
    constexpr double kInset = 0.25;
    constexpr double kStroke = 0.12;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.ground);
    painter.drawRoundedRect(chip, size * kCorner, size * kCorner);
    painter.setPen(QPen(colours.ink, size * kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF inside = chip.adjusted(size * kInset, size * kInset, -size * kInset, -size * kInset);
    if (good_)
        PaintTick(painter, inside);
    else
        PaintCross(painter, inside);
}

}  // namespace vatro
