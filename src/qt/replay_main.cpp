// SPDX-License-Identifier: MIT
//
// Plays scenarios through the real window. Any Qt warning that is not known to be harmless is an error.
#include <QApplication>
#include <QFontDatabase>
#include <QLocale>
#include <array>
#include <cstdio>

#include "application.h"
#include "play.h"
#include "window_driver.h"

namespace {

constexpr int kError = 2;
int warnings = 0;

void CountWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    // Warnings about things that windows without a screen, or a machine without a desktop session, cannot do and do not need.
    static const std::array kHarmless{
        QStringLiteral("This plugin does not support raise()"), QStringLiteral("This plugin does not support propagateSizeHints()"),
        QStringLiteral("This plugin does not support grabbing the keyboard"), QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR not set")};
    for (const QString& harmless : kHarmless)
        if (text.startsWith(harmless)) return;
    std::fprintf(stderr, "Qt: %s\n", qPrintable(text));
    if (type != QtDebugMsg && type != QtInfoMsg) ++warnings;
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(CountWarnings);
    QLocale::setDefault(QLocale(QLocale::Danish, QLocale::Denmark));
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setCursorFlashTime(0);

    const int result = vatro::PlayMain({argv, argv + argc}, [] { return std::make_unique<vatro::WindowDriver>(); });
    return result == 0 && warnings > 0 ? kError : result;
}
