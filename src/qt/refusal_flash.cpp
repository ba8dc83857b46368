// SPDX-License-Identifier: MIT
#include "refusal_flash.h"

#include <QPainter>
#include <QRegion>

#include "signal_colours.h"

namespace vatro {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kTime = 500ms;
/// How far the frame reaches beyond the field, to cover a frame that marks it.
constexpr int kFlashOutside = 2;
/// Broader than any other frame around a field.
constexpr int kFlashWidth = 6;
/// Opacity of the tint over the text.
constexpr float kTint = 0.25F;

}  // namespace

void RefusalFlash::Flash(QWidget& field) {
    RefusalFlash* flash = nullptr;
    for (auto* other : field.parentWidget()->findChildren<RefusalFlash*>(Qt::FindDirectChildrenOnly))
        if (other->field_ == &field) flash = other;
    if (flash == nullptr) flash = new RefusalFlash(field);
    flash->Begin();
}

RefusalFlash::RefusalFlash(QWidget& field) : QWidget(field.parentWidget()), field_(&field) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    timer_.setSingleShot(true);
    timer_.setInterval(kTime);
    connect(&timer_, &QTimer::timeout, this, &QObject::deleteLater);
    connect(&field, &QObject::destroyed, this, &QObject::deleteLater);
}

void RefusalFlash::Begin() {
    setGeometry(field_->geometry().adjusted(-kFlashOutside, -kFlashOutside, kFlashOutside, kFlashOutside));
    raise();
    show();
    timer_.start();
}

void RefusalFlash::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QColor colour = ColoursOf(Signal::Wrong, palette()).ground;
    const QRect inside = rect().adjusted(kFlashWidth, kFlashWidth, -kFlashWidth, -kFlashWidth);
    const QRegion frame = QRegion(rect()) - inside;
    for (const QRect& part : frame) painter.fillRect(part, colour);
    colour.setAlphaF(kTint);
    painter.fillRect(inside, colour);
}

}  // namespace vatro
