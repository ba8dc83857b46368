// SPDX-License-Identifier: MIT
//
// The colours of the program's own schemes, and what they do to things that have colours of their own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QProxyStyle>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "qt/all_schemes.h"
#include "qt/picture.h"
#include "schemes.h"
#include "signal_colours.h"

namespace vatro {
namespace {

void ExpectNothingButRed(QWidget& widget) {
    EXPECT_EQ(Brighter(widget.grab().toImage(), NightPalette().color(QPalette::Text).rgb()), 0) << widget.metaObject()->className();
}

bool HasRed(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qRed(image.pixel(x, y)) > 100) return true;
    return false;
}

class Night : public ::testing::Test {
protected:
    Night() { UseScheme(Scheme::Night); }
    ~Night() override { UseScheme(Scheme::Desktop); }
};

TEST_F(Night, TheTextCursorIsRed) {
    QLineEdit field;
    field.resize(200, 40);
    field.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&field));
    field.activateWindow();
    field.setFocus();
    QTRY_VERIFY_WITH_TIMEOUT(field.hasFocus(), 2000);
    ExpectNothingButRed(field);
    // Still there: a bar of at least half the height in the text's colour, in an empty field.
    const QImage image = field.grab(QRect(3, 3, 20, 34)).toImage();
    int lit = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) lit += qRed(image.pixel(x, y)) > 200 ? 1 : 0;
    EXPECT_GE(lit, 10);
}

TEST(TheFieldWithTheFocus, HasABroaderFrameInTheSchemesWithFrames) {
    for (const Scheme scheme : {Scheme::Sun, Scheme::Night}) {
        UseScheme(scheme);
        QWidget window;
        QLineEdit field(&window);
        QLineEdit other(&window);
        for (QLineEdit* one : {&field, &other}) one->resize(200, 40);
        other.move(0, 50);
        window.show();
        window.activateWindow();
        field.setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }));
        const QRgb ground = window.palette().color(QPalette::Base).rgb();
        // Pixels from the upper edge, in the middle, where there is neither text nor cursor.
        const auto broad = [&](QLineEdit& one) {
            const QImage picture = PictureOf(one);
            int pixels = 0;
            while (pixels < picture.height() / 2 && ContrastOf(picture.pixel(100, pixels), ground) > 2) ++pixels;
            return pixels;
        };
        EXPECT_GE(broad(other), 1);
        EXPECT_GT(broad(field), broad(other));
        UseScheme(Scheme::Desktop);
    }
}

TEST_F(Night, IconsOfMessagesAreRed) {
    for (const QMessageBox::Icon icon : {QMessageBox::Information, QMessageBox::Question, QMessageBox::Warning, QMessageBox::Critical}) {
        QMessageBox box(icon, QStringLiteral("t"), QStringLiteral("text"), QMessageBox::Ok);
        box.show();
        auto* picture = box.findChild<QWidget*>(QStringLiteral("qt_msgboxex_icon_label"));
        ASSERT_NE(picture, nullptr);
        ExpectNothingButRed(*picture);
        EXPECT_TRUE(HasRed(*picture)) << icon;
    }
}

TEST_F(Night, IconsOfButtonsThatCannotBePressedAreRed) {
    QToolButton button;
    button.setIcon(QApplication::style()->standardIcon(QStyle::SP_ArrowBack));
    button.setEnabled(false);
    button.resize(40, 40);
    ExpectNothingButRed(button);
    const QImage image = button.grab().toImage();
    int lit = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) lit += qRed(image.pixel(x, y)) > 30 ? 1 : 0;
    EXPECT_GT(lit, 10);
}

/// The picture of the button that a toolbar shows if it has no room.
QImage ExtensionOf(const QToolBar& bar) {
    const auto* extension = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    return extension != nullptr ? extension->icon().pixmap(extension->iconSize()).toImage() : QImage();
}

TEST(IconOfAToolbarWithoutRoom, FollowsTheScheme) {
    UseScheme(Scheme::Desktop);
    const QToolBar bar;
    const QImage desktop = ExtensionOf(bar);
    ASSERT_FALSE(desktop.isNull());
    UseScheme(Scheme::Night);
    const QImage night = ExtensionOf(bar);
    ASSERT_FALSE(night.isNull());
    int lit = 0;
    for (int y = 0; y < night.height(); ++y)
        for (int x = 0; x < night.width(); ++x) lit += qAlpha(night.pixel(x, y)) > 127 && qRed(night.pixel(x, y)) > 100 ? 1 : 0;
    EXPECT_GT(lit, 10);
    UseScheme(Scheme::Desktop);
    EXPECT_EQ(ExtensionOf(bar), desktop);
}

TEST(IconOfAToolbarWithoutRoom, IsThatOfTheDesktop) {
    UseScheme(Scheme::Desktop);
    auto* style = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    const QIcon desktop = style->baseStyle()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    QToolBar bar;
    const auto* extension = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    ASSERT_NE(extension, nullptr);
    const QSize size = extension->iconSize();
    ASSERT_FALSE(desktop.pixmap(size).isNull());
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled})
        EXPECT_EQ(extension->icon().pixmap(size, 2, mode).toImage(), desktop.pixmap(size, 2, mode).toImage()) << mode;
    EXPECT_EQ(extension->icon().actualSize(size), desktop.actualSize(size));
}

TEST(EdgesOfFields, DifferFromTheirSurroundingsInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        const bool own = palette == SunPalette() || palette == NightPalette();
        UseScheme(palette == SunPalette() ? Scheme::Sun : own ? Scheme::Night : Scheme::Desktop);
        if (!own) QApplication::setPalette(palette);
        QWidget window;
        QLineEdit line(&window);
        QComboBox box(&window);
        QListView list(&window);
        QCheckBox tick(&window);
        QRadioButton option(&window);
        box.setEditable(true);
        int top = 10;
        for (QWidget* field : std::initializer_list<QWidget*>{&line, &box, &list, &tick, &option}) {
            field->setGeometry(10, top, 200, 40);
            top += 50;
        }
        window.resize(220, top);
        const QImage picture = PictureOf(window);
        for (const QWidget* field : std::initializer_list<const QWidget*>{&line, &box, &list, &tick, &option}) {
            // The best of the outermost pixels, across the left edge in the middle.
            const QRect across(field->x(), field->y() + field->height() / 2, 4, 1);
            EXPECT_GE(Contrast(picture, across, window.palette().color(QPalette::Window).rgb()), 3)
                << scheme << ' ' << field->metaObject()->className();
        }
        UseScheme(Scheme::Desktop);
    }
}

TEST(TheSliderOfAScrollBar, HasAnEdgeInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        const bool own = palette == SunPalette() || palette == NightPalette();
        UseScheme(palette == SunPalette() ? Scheme::Sun : own ? Scheme::Night : Scheme::Desktop);
        if (!own) QApplication::setPalette(palette);
        QScrollBar bar(Qt::Horizontal);
        bar.setRange(0, 100);
        bar.setPageStep(20);
        bar.setValue(50);
        bar.resize(300, 20);
        const QImage picture = PictureOf(bar);
        EXPECT_GE(Contrast(picture, QRect(100, 10, 100, 1), picture.pixel(60, 10)), 3) << scheme;
        UseScheme(Scheme::Desktop);
    }
}

TEST(TheIndicatorsOfTicksAndOptions, GrowWithTheirText) {
    UseScheme(Scheme::Desktop);
    const auto size = [](QAbstractButton& button, double points, QStyle::PixelMetric metric) {
        QFont font = button.font();
        font.setPointSizeF(points);
        button.setFont(font);
        return button.style()->pixelMetric(metric, nullptr, &button);
    };
    QCheckBox tick;
    QRadioButton option;
    for (const QStyle::PixelMetric metric : {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight})
        EXPECT_GE(size(tick, 22, metric), 1.5 * size(tick, 11, metric));
    for (const QStyle::PixelMetric metric : {QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight})
        EXPECT_GE(size(option, 22, metric), 1.5 * size(option, 11, metric));
}

TEST_F(Night, MenusHaveAnEdge) {
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(QPoint(10, 10));
    const QImage image = menu.grab().toImage();
    for (const QPoint& at : {QPoint(0, image.height() / 2), QPoint(image.width() - 1, image.height() / 2), QPoint(image.width() / 2, 0),
                             QPoint(image.width() / 2, image.height() - 1)})
        EXPECT_GE(ContrastOf(image.pixel(at), qRgb(0, 0, 0)), 3) << at.x() << ' ' << at.y();
}

TEST_F(Night, GoesAwayWithoutATrace) {
    UseScheme(Scheme::Desktop);
    QLineEdit field;
    EXPECT_TRUE(field.findChildren<QWidget*>().isEmpty());
    EXPECT_FALSE(IsNight(field.palette()));
    EXPECT_EQ(QApplication::palette("vatro::ColumnHead").color(QPalette::WindowText), QApplication::palette().color(QPalette::WindowText));
}

TEST(TheNightPalette, IsBrightestInTheTextAndDimmestInWhatIsDisabled) {
    const QPalette night = NightPalette();
    const auto contrast = [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return ContrastOf(night.color(group, role).rgb(), qRgb(0, 0, 0));
    };
    EXPECT_GE(contrast(QPalette::Active, QPalette::Text), 4.5);
    EXPECT_GE(contrast(QPalette::Active, QPalette::Mid), 3) << "frames of fields";
    EXPECT_GT(contrast(QPalette::Active, QPalette::Text), contrast(QPalette::Active, QPalette::Mid));
    EXPECT_GT(contrast(QPalette::Active, QPalette::Mid), contrast(QPalette::Disabled, QPalette::Text));
    EXPECT_FALSE(IsNight(SunPalette()));
    EXPECT_FALSE(IsNight(QPalette(QColor(0x30, 0x30, 0x30))));
    EXPECT_TRUE(IsNight(night));
}

}  // namespace
}  // namespace vatro
