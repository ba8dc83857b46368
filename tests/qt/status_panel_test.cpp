// SPDX-License-Identifier: MIT
#include "status_panel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QTest>
#include <vector>

#include "entry/validation.h"
#include "qt/all_schemes.h"
#include "qt/picture.h"
#include "qt_text.h"

namespace vatro {
namespace {

constexpr PanelMark kMarks[]{PanelMark::Duplicate, PanelMark::NewCountry, PanelMark::WorkedCountry, PanelMark::Station, PanelMark::Unknown};

class AStatusPanel : public ::testing::Test {
protected:
    AStatusPanel() {
        bar.addWidget(panel, 1);
        window.setStatusBar(&bar);
        panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        window.resize(700, 200);
        window.show();
        Settle();
    }
    ~AStatusPanel() override { QApplication::setPalette(QPalette()); }
    static void Settle() { QTest::qWait(1); }
    void Show(const QString& text, PanelMark mark) {
        panel->SetPanelText(text, QStringLiteral("tip"), mark);
        Settle();
    }
    QImage Picture() const { return PictureOf(*panel); }
    /// The part with the sign, and the part with the text.
    QRect SignPlace() const { return {0, 0, panel->fontMetrics().height() + 4, panel->height()}; }
    QRect TextPlace() const { return panel->rect().adjusted(SignPlace().width() + 1, 0, 0, 0); }

    QMainWindow window;
    QStatusBar& bar = *new QStatusBar;
    StatusPanel* panel = new StatusPanel;
};

TEST_F(AStatusPanel, TextIsLegibleWithEveryMarkInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        for (const PanelMark mark : kMarks) {
            Show(QStringLiteral("DL: Fed. Rep. of Germany"), mark);
            const QImage picture = Picture();
            EXPECT_GE(Contrast(picture, TextPlace(), Ground(picture, TextPlace())), 4.5) << scheme << ", " << static_cast<int>(mark);
        }
    }
}

TEST_F(AStatusPanel, SignIsLegibleInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        for (const PanelMark mark : kMarks) {
            Show(QString(), mark);
            const QImage picture = Picture();
            // The middle of the sign's place, without the corners outside its ground.
            const int inset = SignPlace().width() / 5;
            const QRect inside(inset, panel->height() / 2 - inset, 3 * inset, 2 * inset);
            EXPECT_GE(Contrast(picture, inside, Ground(picture, inside)), 3) << scheme << ", " << static_cast<int>(mark);
        }
    }
}

/// At night all colours are one. Compared without colour, so that an operator who sees none can tell them apart too.
TEST_F(AStatusPanel, EveryMarkHasAnotherSign) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        std::vector<QImage> signs;
        for (const PanelMark mark : kMarks) {
            Show(QString(), mark);
            QImage sign = Picture().copy(SignPlace()).convertToFormat(QImage::Format_Grayscale8);
            const int middle = (qGray(sign.pixel(sign.width() / 2, sign.height() / 2)));
            // Only the shape counts: what differs clearly from the middle of the picture, and what does not.
            for (int y = 0; y < sign.height(); ++y)
                for (int x = 0; x < sign.width(); ++x) {
                    const bool same = std::abs(qGray(sign.pixel(x, y)) - middle) < 60;
                    sign.setPixel(x, y, same ? 0 : 255);
                }
            for (const QImage& other : signs) {
                int different = 0;
                for (int y = 0; y < sign.height(); ++y)
                    for (int x = 0; x < sign.width(); ++x) different += sign.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
                EXPECT_GT(different, sign.width() * sign.height() / 20) << scheme << ", " << static_cast<int>(mark);
            }
            signs.push_back(sign);
        }
    }
}

TEST_F(AStatusPanel, ADuplicateFillsThePanelAndAWorkedCountryLeavesItPlain) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        const QRgb plain = palette.color(QPalette::Window).rgb();
        Show(ToQt(kDupeWarning), PanelMark::Duplicate);
        EXPECT_GE(ContrastOf(Ground(Picture(), panel->rect()), plain), 3) << scheme;
        Show(QStringLiteral("DL: Fed. Rep. of Germany (EU), er kørt."), PanelMark::WorkedCountry);
        EXPECT_EQ(Ground(Picture(), panel->rect()), plain) << scheme;
    }
}

TEST_F(AStatusPanel, ALongTextGoesOnInASecondLineAndIsWhole) {
    window.resize(panel->fontMetrics().horizontalAdvance(ToQt(kDupeWarning)) * 3 / 2, 200);
    Show(ToQt(kDupeWarning), PanelMark::Duplicate);
    const int one = panel->height();
    EXPECT_EQ(panel->Lines(), 1);
    window.resize(panel->fontMetrics().horizontalAdvance(ToQt(kDupeWarning)) * 3 / 4, 200);
    Settle();
    EXPECT_EQ(panel->Lines(), 2);
    EXPECT_EQ(panel->text(), ToQt(kDupeWarning));
    EXPECT_GE(panel->height(), one + panel->fontMetrics().height());
    EXPECT_EQ(panel->toolTip(), QStringLiteral("tip"));
    EXPECT_EQ(panel->accessibleName(), ToQt(kDupeWarning));
}

TEST_F(AStatusPanel, KeepsNoMoreRoomThanItsLongestTextNeeds) {
    const QString longest = ToQt(kDupeWarning);
    panel->KeepRoomFor(longest, PanelMark::Duplicate);
    const int plain = panel->fontMetrics().horizontalAdvance(longest);
    const int one = panel->fontMetrics().lineSpacing() + 2 * panel->margin();
    QFont loud = panel->font();
    loud.setBold(true);
    ASSERT_LT(plain, QFontMetrics(loud).horizontalAdvance(longest));
    bool two = true;
    for (int width = plain / 2; width < 2 * plain; width += 7) {
        Show(QString(), PanelMark::None);
        window.resize(width, 200);
        Settle();
        const int kept = panel->minimumHeight();
        Show(longest, PanelMark::Duplicate);
        two = panel->Lines() == 2;
        EXPECT_EQ(kept > one, two) << width;
    }
    EXPECT_FALSE(two);
}

TEST_F(AStatusPanel, BlanksAtTheEndOfATextNeedNoLine) {
    Show(QStringLiteral("OZ1QAB Aarhus afdeling") + QString(300, u' '), PanelMark::Station);
    EXPECT_EQ(panel->Lines(), 1);
    EXPECT_EQ(panel->toolTip(), QStringLiteral("tip"));
}

TEST_F(AStatusPanel, WhatDoesNotFitInTwoLinesIsInTheTooltip) {
    const QString text = QStringLiteral("word ").repeated(200);
    Show(text, PanelMark::Unknown);
    EXPECT_EQ(panel->Lines(), 2);
    EXPECT_TRUE(panel->text().endsWith(u'…'));
    EXPECT_TRUE(panel->toolTip().startsWith(text));
    EXPECT_EQ(panel->PanelText(), text);
}

TEST_F(AStatusPanel, KeepsItsHeightFromCallToCall) {
    Show(QStringLiteral("word ").repeated(200), PanelMark::Unknown);
    const int high = panel->height();
    Show(QStringLiteral("short"), PanelMark::None);
    EXPECT_EQ(panel->Lines(), 1);
    EXPECT_EQ(panel->height(), high);
    window.resize(750, 200);
    Settle();
    EXPECT_LT(panel->height(), high);
}

TEST_F(AStatusPanel, AFadedTextIsFainterButLegibleAndHasNoColour) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        Show(QStringLiteral("DL: Fed. Rep. of Germany"), PanelMark::WorkedCountry);
        const QRgb plain = palette.color(QPalette::Window).rgb();
        const double before = Contrast(Picture(), panel->rect(), plain);
        Show(QStringLiteral("DL: Fed. Rep. of Germany"), PanelMark::Duplicate);
        panel->SetFaded(true);
        Settle();
        EXPECT_EQ(Ground(Picture(), panel->rect()), plain) << scheme;
        EXPECT_GE(Contrast(Picture(), panel->rect(), plain), 3) << scheme;
        EXPECT_LT(Contrast(Picture(), panel->rect(), plain), before) << scheme;
    }
}

}  // namespace
}  // namespace vatro
