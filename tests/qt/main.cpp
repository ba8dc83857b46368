// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QLocale>
#include <cstdio>

#include "qt/application.h"

namespace {

/// A warning of Qt that nobody expects fails the test in which it comes.
void FailOnWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith(QStringLiteral("This plugin does not support")) ||
        text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        return;
    }
    ADD_FAILURE() << "Qt: " << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(FailOnWarnings);
    QLocale::setDefault(QLocale(QLocale::Danish, QLocale::Denmark));
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
