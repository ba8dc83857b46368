// SPDX-License-Identifier: MIT
#include "field_mark.h"

#include <QEvent>
#include <QPainter>

namespace vatro {

namespace {

constexpr int kMarkWidth = 4;
/// The rest covers the field's own frame, so that there are not two frames.
constexpr int kMarkOutside = 2;

}  // namespace

FieldMark::FieldMark() {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void FieldMark::Surround(QWidget& widget) {
    if (widget_ != &widget) {
        if (widget_ != nullptr) widget_->removeEventFilter(this);
        widget_ = &widget;
        widget.installEventFilter(this);
    }
    if (parentWidget() != widget.parentWidget()) setParent(widget.parentWidget());
    setGeometry(widget.geometry().adjusted(-kMarkOutside, -kMarkOutside, kMarkOutside, kMarkOutside));
    show();
    raise();
}

bool FieldMark::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget_ && isVisible() && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) Surround(*widget_);
    return false;
}

void FieldMark::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::WindowText), kMarkWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    constexpr double kMiddle = kMarkWidth / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(kMiddle, kMiddle, -kMiddle, -kMiddle));
}

}  // namespace vatro
