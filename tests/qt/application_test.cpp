// SPDX-License-Identifier: MIT
#include "application.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QImage>
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

}  // namespace
}  // namespace vatro
