// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QLocale>
#include <QScreen>
#include <cstdio>
#include <iostream>

#include "application.h"

namespace {

/// Warnings about the offscreen plugin, and about a print that cannot be written, which the program reports itself.
bool Expected(const QString& text) {
    return text.startsWith(QStringLiteral("This plugin does not support")) ||
           text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")) ||
           text == QStringLiteral("QPainter::begin(): Returned false");
}

/// An unexpected warning from Qt fails the running test.
void FailOnWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg || Expected(text)) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        return;
    }
    ADD_FAILURE() << "Qt: " << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(FailOnWarnings);
    QLocale::setDefault(QLocale(QLocale::Danish, QLocale::Denmark));
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    QApplication::setStyle(QStringLiteral("Fusion"));
    // Many tests count on this room, at every scale.
    constexpr QSize kScreen(800, 800);
    const QSize screen = QGuiApplication::primaryScreen()->size();
    if (QGuiApplication::platformName() == QStringLiteral("offscreen") && screen != kScreen) {
        std::cerr << "the screen has " << screen.width() << " by " << screen.height() << " pixels; see qt.scaled in CMakeLists.txt\n";
        return 1;
    }
    return RUN_ALL_TESTS();
}
