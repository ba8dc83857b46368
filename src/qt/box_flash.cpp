// SPDX-License-Identifier: MIT
#include "box_flash.h"

#include <QAccessible>
#include <QLayout>
#include <QPainter>
#include <QRegion>

namespace vatro {

namespace {

using namespace std::chrono_literals;

/// Durations of the steps: on, off, on; then the frame disappears.
constexpr std::chrono::milliseconds kSteps[]{200ms, 150ms, 500ms};
constexpr int kLast = 2;
/// Opacity of the layer over text and buttons in the first step.
constexpr float kVeil = 0.4F;

}  // namespace

void BoxFlash::Flash(QWidget& box) {
    auto* flash = box.findChild<BoxFlash*>(QString(), Qt::FindDirectChildrenOnly);
    if (flash == nullptr) flash = new BoxFlash(box);
    flash->Begin();
    QWidget* focused = box.focusWidget() != nullptr ? box.focusWidget() : &box;
    QAccessibleEvent again(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&again);
}

BoxFlash::BoxFlash(QWidget& box) : QWidget(&box) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &BoxFlash::Step);
}

void BoxFlash::Begin() {
    // If already flashing, only extend the last step.
    step_ = timer_.isActive() ? kLast : 0;
    setGeometry(parentWidget()->rect());
    raise();
    show();
    timer_.start(kSteps[step_]);
}

void BoxFlash::Step() {
    ++step_;
    setVisible(step_ == kLast);
    if (step_ <= kLast) timer_.start(kSteps[step_]);
}

void BoxFlash::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QColor colour = palette().color(QPalette::WindowText);
    // As wide as the margin of the box, so that text and buttons stay readable.
    const QLayout* layout = parentWidget()->layout();
    const int broad = layout != nullptr ? layout->contentsMargins().left() : fontMetrics().height() / 2;
    const QRegion frame = QRegion(rect()) - rect().adjusted(broad, broad, -broad, -broad);
    for (const QRect& part : frame) painter.fillRect(part, colour);
    if (step_ == kLast) return;
    colour.setAlphaF(kVeil);
    painter.fillRect(rect(), colour);
}

}  // namespace vatro
