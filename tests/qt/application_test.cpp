// SPDX-License-Identifier: MIT
#include "application.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileIconProvider>
#include <QGroupBox>
#include <QIcon>
#include <QImage>
#include <QKeySequence>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <set>

namespace vatro {
namespace {

TEST(TheApplication, HasAnIconOfItsOwnAtEverySizeOfADesktop) {
    for (const int side : {16, 32, 48, 256}) {
        const QImage picture = QApplication::windowIcon().pixmap(QSize(side, side), 1.0).toImage();
        ASSERT_EQ(picture.size(), QSize(side, side));
        EXPECT_LT(qAlpha(picture.pixel(0, 0)), 64) << "the corners are round, size " << side;
        std::set<QRgb> colours;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) colours.insert(picture.pixel(x, y));
        EXPECT_GT(colours.size(), 5U) << "sky, grass, two sides of the tent, lamp and waves, size " << side;
    }
}

TEST(TheApplication, IsNamedAsItsDesktopEntryIs) {
    EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("dk.vatro.Vatro"));
}

TEST(TheApplication, CallsADirectoryAndAKeyWhatTheHandbookCallsThem) {
    const QTemporaryDir directory;
    EXPECT_EQ(QFileIconProvider().type(QFileInfo(directory.path())), QStringLiteral("Mappe"));
    EXPECT_EQ(QKeySequence(QStringLiteral("Shift+F5")).toString(QKeySequence::NativeText), QStringLiteral("Skift+F5"));
    EXPECT_EQ(QKeySequence(QStringLiteral("Shift+F5")), QKeySequence(Qt::SHIFT | Qt::Key_F5));
}

TEST(TheApplication, ChoosesThePrinterInDanish) {
    QPrinter printer;
    const QPrintDialog dialog(&printer);
    QStringList words;
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) words.append(button->text());
    for (const auto* group : dialog.findChildren<QGroupBox*>()) words.append(group->title());
    EXPECT_TRUE(words.contains(QStringLiteral("Tosidet udskrift"))) << words.join(u' ').toStdString();
    for (const char* english : {"Double Sided Printing", "Off", "Long side binding", "Short side binding"})
        EXPECT_FALSE(words.contains(QLatin1String(english))) << english;
}

}  // namespace
}  // namespace vatro
