// SPDX-License-Identifier: MIT
#include "title_room.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QStyle>
#include <QWidget>

namespace vatro {

namespace {

/// The icon of the window, its buttons, and the space around them, each about as wide as the title bar is high.
constexpr int kPlaces = 6;

}  // namespace

int WidthForTitle(const QString& title) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(title) + kPlaces * QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

void KeepTitleWhole(QWidget& dialog) {
    QLayout* layout = dialog.layout();
    if (layout == nullptr) return;
    const QMargins margins = layout->contentsMargins();
    const int width = WidthForTitle(dialog.windowTitle()) - margins.left() - margins.right();
    if (auto* rows = qobject_cast<QVBoxLayout*>(layout))
        rows->addStrut(width);
    else if (auto* grid = qobject_cast<QGridLayout*>(layout))
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum), 0, 0, 1, grid->columnCount());
}

}  // namespace vatro
