// SPDX-License-Identifier: MIT
#include "qt/application.h"

#include <QApplication>
#include <QFont>

namespace vatro {

namespace {

constexpr double kLeastPoints = 11;

}  // namespace

void PrepareApplication() {
    QApplication::setApplicationName(QStringLiteral("vatro"));
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(VATRO_VERSION_MAJOR).arg(VATRO_VERSION_MINOR).arg(VATRO_VERSION_PATCH));
    QApplication::setDesktopFileName(QStringLiteral("vatro"));
    QApplication::setQuitOnLastWindowClosed(false);
    QFont font = QApplication::font();
    if (font.pointSizeF() < kLeastPoints) {
        font.setPointSizeF(kLeastPoints);
        QApplication::setFont(font);
    }
}

}  // namespace vatro
