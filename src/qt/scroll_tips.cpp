// SPDX-License-Identifier: MIT
#include "scroll_tips.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QToolTip>

namespace vatro {

namespace {

/// Whether the bar scrolls something, and so has no value of its own.
bool Scrolls(const QScrollBar& bar) {
    for (const QWidget* parent = bar.parentWidget(); parent != nullptr; parent = parent->parentWidget())
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(parent))
            if (area->verticalScrollBar() == &bar || area->horizontalScrollBar() == &bar) return true;
    return false;
}

QString ShareOf(const QScrollBar& bar, int value) {
    const int range = bar.maximum() - bar.minimum();
    return QStringLiteral("%1 %").arg(range > 0 ? qRound(100.0 * (value - bar.minimum()) / range) : 0);
}

/// Below the middle of the bar: Qt shows a tooltip somewhat below the place that it is given.
void Tell(QScrollBar& bar, const QString& text) {
    QToolTip::showText(bar.mapToGlobal(QPoint(bar.width() / 2, 0)), text, &bar);
}

}  // namespace

ScrollTips::ScrollTips() {
    qApp->installEventFilter(this);
}

void ScrollTips::Watch(QScrollBar& bar) {
    bar.setToolTip(ShareOf(bar, bar.value()));
    connect(&bar, &QAbstractSlider::sliderMoved, this, [&bar](int value) { Tell(bar, ShareOf(bar, value)); });
    connect(&bar, &QAbstractSlider::valueChanged, this, [&bar](int value) {
        bar.setToolTip(ShareOf(bar, value));
        if (bar.isVisible() && (bar.hasFocus() || bar.underMouse())) Tell(bar, bar.toolTip());
    });
}

bool ScrollTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Polish) return false;
    auto* bar = qobject_cast<QScrollBar*>(watched);
    if (bar != nullptr && !Scrolls(*bar)) Watch(*bar);
    return false;
}

}  // namespace vatro
