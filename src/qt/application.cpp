// SPDX-License-Identifier: MIT
#include "qt/application.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

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
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vatro")));
    // Qt's own words, of its file dialogue and context menus, where they are installed.
    auto* danish = new QTranslator(qApp);
    if (danish->load(QStringLiteral("qtbase_da"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(danish);
    QFont font = QApplication::font();
    if (font.pointSizeF() < kLeastPoints) {
        font.setPointSizeF(kLeastPoints);
        QApplication::setFont(font);
    }
}

}  // namespace vatro
