// SPDX-License-Identifier: MIT
#include "application.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include "accessibility.h"

// Must be outside of every namespace, because Qt's resource macro requires it.
static void UseIcon() {
    Q_INIT_RESOURCE(icon);
}

namespace vatro {

namespace {

constexpr double kLeastPoints = 11;

}  // namespace

void PrepareApplication() {
    InstallAccessibility();
    QApplication::setApplicationName(QStringLiteral("vatro"));
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(VATRO_VERSION_MAJOR).arg(VATRO_VERSION_MINOR).arg(VATRO_VERSION_PATCH));
    QApplication::setDesktopFileName(QStringLiteral("dk.vatro.Vatro"));
    QApplication::setQuitOnLastWindowClosed(false);
    UseIcon();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icon/dk.vatro.Vatro.svg")));
    // Qt's own texts, for example in its file dialogue and context menus, if the translation is installed.
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
