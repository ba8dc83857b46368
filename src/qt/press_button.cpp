// SPDX-License-Identifier: MIT
#include "press_button.h"

#include <QEvent>
#include <QPainter>

namespace vatro {

namespace {

/// The captions are the largest words of the window's head.
constexpr double kLarger = 1.25;

}  // namespace

PressButton::PressButton(QWidget* parent) : QToolButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * kLarger);
    setFont(larger);
}

QFont PressButton::PressedFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QSize PressButton::sizeHint() const {
    if (!hint_.isValid() || hintedText_ != text()) {
        const QFontMetrics metrics(PressedFont());
        hintedText_ = text();
        hint_ = {metrics.horizontalAdvance(hintedText_) + 2 * metrics.averageCharWidth(), metrics.height() * 3 / 2};
    }
    return hint_;
}

void PressButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) hint_ = {};
    QToolButton::changeEvent(event);
}

void PressButton::paintEvent(QPaintEvent* event) {
    if (!isChecked()) return QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    const double round = height() / 8.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), round, round);
    painter.setFont(PressedFont());
    painter.setPen(palette().color(QPalette::Window));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

QWidget* PressAction::createWidget(QWidget* parent) {
    auto* button = new PressButton(parent);
    button->setDefaultAction(this);
    return button;
}

}  // namespace vatro
