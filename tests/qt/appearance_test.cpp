// SPDX-License-Identifier: MIT
#include "appearance.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <string>
#include <vector>

#include "bar_widgets.h"
#include "column_head.h"
#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/frmUTC.h"
#include "entry/qso_fields.h"
#include "fields.h"
#include "frame/state.h"
#include "item_list.h"
#include "keyer/frmCW.h"
#include "main_size.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "schemes.h"

namespace vatro {
namespace {

class AppearanceOfTheWindow : public WindowProgram {
protected:
    AppearanceOfTheWindow() {
        dynamic_cast<QtFront&>(driver.ProgramFront()).extraEntries.emplace_back([](QMainWindow& window, QMenu& menu) {
            new Appearance(window, menu);
        });
    }
    ~AppearanceOfTheWindow() override { QApplication::setPalette(QPalette()); }
    QMainWindow& Window() { return dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top()); }
    QAction& Sun() { return *Window().findChild<QAction*>(QStringLiteral("appearanceSolskin")); }
    QAction& Night() { return *Window().findChild<QAction*>(QStringLiteral("appearanceNat")); }
    QWidget& Call() { return WidgetOf<QWidget>(frmMain->fields[kCallField]); }
    /// The font size of the call field.
    double Points() { return Call().font().pointSizeF(); }
    void Press(Qt::Key key) {
        QTest::keyClick(&Window(), key, Qt::ControlModifier);
        driver.Settle();
    }
};

TEST_F(AppearanceOfTheWindow, DialoguesOfAFixedSizeGrowNoLargerThanTheScreen) {
    settings.texts["SETTINGS/TEKSTSTR"] = "10";
    StartVatro();
    for (Form* form : {static_cast<Form*>(&*frmCW), static_cast<Form*>(&*frmUTC)}) {
        Dispatch([&] { form->Show(); });
        driver.Settle();
        const QWidget& window = *WindowOf(*form).Top();
        const QSize screen = window.screen()->availableSize();
        EXPECT_LE(window.frameGeometry().width(), screen.width()) << form->Name();
        EXPECT_LE(window.frameGeometry().height(), screen.height()) << form->Name();
        Dispatch([&] { form->Hide(); });
    }
    // One that has room has the text that was chosen.
    EXPECT_NEAR(WidgetOf<QWidget>(frmUTC->okButton).font().pointSizeF(), 2 * QApplication::font().pointSizeF(), 0.1);
}

TEST_F(AppearanceOfTheWindow, SunIsBlackOnWhiteAndBoldAndIsRemembered) {
    StartVatro();
    const QPalette usual = QApplication::palette();
    Sun().trigger();
    driver.Settle();
    EXPECT_EQ(Window().palette().color(QPalette::Window), QColor(Qt::white));
    EXPECT_EQ(Call().palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_TRUE(WidgetOf<QWidget>(frmMain->log).font().bold());
    EXPECT_EQ(settings.Read("Settings", "Solskin"), "True");
    Sun().trigger();
    driver.Settle();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), usual.color(QPalette::Window));
    EXPECT_FALSE(WidgetOf<QWidget>(frmMain->log).font().bold());
    EXPECT_EQ(settings.Read("Settings", "Solskin"), "False");
}

TEST_F(AppearanceOfTheWindow, NightIsDimRedOnBlackInPlaceOfTheSun) {
    StartVatro();
    Sun().trigger();
    Night().trigger();
    driver.Settle();
    EXPECT_FALSE(Sun().isChecked());
    EXPECT_EQ(Window().palette().color(QPalette::Window), QColor(Qt::black));
    const QColor ink = Call().palette().color(QPalette::Text);
    EXPECT_EQ(ink.hue() / 30, 0);
    EXPECT_LT(ink.lightness(), 140);
    EXPECT_EQ(settings.Read("Settings", "Nat"), "True");
    EXPECT_EQ(settings.Read("Settings", "Solskin"), "False");
    Night().trigger();
    driver.Settle();
    EXPECT_EQ(settings.Read("Settings", "Nat"), "False");
    EXPECT_NE(Window().palette().color(QPalette::Window), QColor(Qt::black));
}

TEST_F(AppearanceOfTheWindow, NightLeavesNothingButRedInAnyWindow) {
    StartVatro();
    desk().log.Append("12:07 DL1ABC          59 -0001 59 -0345  3            OZ1AB      SSB   05-09-26");
    Night().trigger();
    Dispatch([] {
        frmMain->fields[kCallField].SetText("DL1ABC");
        frmMain->fields[kCallField].SetFocus();
        frmMain->fields[kReportSentField].SetFocus();
    });
    driver.Settle();
    const QRgb text = NightPalette().color(QPalette::Text).rgb();
    for (Form* form : {static_cast<Form*>(&*frmMain), static_cast<Form*>(&*frmQSOnr), static_cast<Form*>(&*frmB4),
                       static_cast<Form*>(&*frmCW), static_cast<Form*>(&*frmUTC)}) {
        Dispatch([&] { form->Show(); });
        driver.Settle();
        EXPECT_EQ(Brighter(WindowOf(*form).Top()->grab().toImage(), text), 0) << form->Name();
    }
}

/// Band and mode must be read from two metres: the ground of the pressed button differs from that of the others.
TEST_F(AppearanceOfTheWindow, ThePressedButtonsStandOutInEveryScheme) {
    StartVatro();
    auto& bar = WidgetOf<QToolBar>(frmMain->toolbar);
    const auto ground = [&bar](int index) {
        QWidget* button = bar.widgetForAction(ActionOf(index, bar));
        return button->grab().toImage().pixel(button->width() / 2, 3);
    };
    const auto expectContrast = [&](const char* scheme) {
        driver.Settle();
        EXPECT_GE(ContrastOf(ground(5), ground(4)), 3) << scheme << ", 80m beside 40m";
        EXPECT_GE(ContrastOf(ground(8), ground(9)), 3) << scheme << ", SSB beside CW";
    };
    expectContrast("light");
    Sun().trigger();
    expectContrast("sun");
    Night().trigger();
    expectContrast("night");
    Night().trigger();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    expectContrast("dark");
}

TEST_F(AppearanceOfTheWindow, BandAndModeAreTheLargestWordsOfTheHead) {
    StartVatro();
    auto& bar = WidgetOf<QToolBar>(frmMain->toolbar);
    const double band = bar.widgetForAction(ActionOf(5, bar))->font().pointSizeF();
    EXPECT_GE(band, 1.2 * Window().menuBar()->font().pointSizeF());
    for (const QWidget* widget : Window().findChildren<QWidget*>())
        if (widget->isVisible() && widget->mapTo(&Window(), QPoint()).y() < bar.geometry().bottom()) {
            EXPECT_LE(widget->font().pointSizeF(), band) << widget->objectName().toStdString();
        }
}

TEST_F(AppearanceOfTheWindow, TheButtonsOfTheHeadHaveRoomForALargerCaption) {
    StartVatro();
    auto& bar = WidgetOf<QToolBar>(frmMain->toolbar);
    QWidget* band = bar.widgetForAction(ActionOf(5, bar));
    const QSize usual = band->sizeHint();
    Press(Qt::Key_Plus);
    Press(Qt::Key_Plus);
    EXPECT_GT(band->sizeHint().height(), usual.height());
    EXPECT_GT(band->sizeHint().width(), usual.width());
    Press(Qt::Key_0);
    EXPECT_EQ(band->sizeHint(), usual);
    ActionOf(5, bar)->setText(QStringLiteral("1296m"));
    EXPECT_GT(band->sizeHint().width(), usual.width());
}

TEST_F(AppearanceOfTheWindow, TextGrowsAndShrinksByTenthsAndGoesBack) {
    StartVatro();
    const double usual = Points();
    Press(Qt::Key_Plus);
    Press(Qt::Key_Plus);
    EXPECT_NEAR(Points(), usual * 1.2, 0.01);
    EXPECT_EQ(settings.Read("Settings", "TekstStr"), "2");
    Press(Qt::Key_0);
    EXPECT_NEAR(Points(), usual, 0.01);
    Press(Qt::Key_Minus);
    EXPECT_NEAR(Points(), usual * 0.9, 0.01);
    for (int i = 0; i < 20; ++i) Press(Qt::Key_Minus);
    EXPECT_NEAR(Points(), usual * 0.7, 0.01) << "three steps are the smallest";
}

TEST_F(AppearanceOfTheWindow, WindowGrowsWithItsTextAsFarAsTheScreenGoes) {
    StartVatro();
    const QRect screen = Window().screen()->availableGeometry();
    const QSize usual = Window().size();
    const auto* room = dynamic_cast<const ScrollRoom*>(Window().centralWidget());
    for (int i = 0; i < 10; ++i) Press(Qt::Key_Plus);
    // Either everything is visible, or the window uses all of the screen.
    EXPECT_TRUE(room->width() >= room->Needed().width() || Window().width() >= screen.right() - Window().x());
    EXPECT_TRUE(room->height() >= room->Needed().height() || Window().height() >= screen.bottom() - Window().y());
    EXPECT_GE(Window().width(), usual.width());
    EXPECT_GT(room->widget()->minimumSizeHint().width(), usual.width());
}

TEST_F(AppearanceOfTheWindow, NormalTextGivesTheWindowItsOwnSizeBack) {
    StartVatro();
    Window().resize(Window().minimumSizeHint().expandedTo({400, 300}));
    driver.Settle();
    const QSize own = Window().size();
    for (int i = 0; i < 6; ++i) Press(Qt::Key_Plus);
    ASSERT_GT(Window().width(), own.width());
    EXPECT_EQ(OwnSize(Window()), own);
    Press(Qt::Key_Minus);
    Press(Qt::Key_0);
    EXPECT_EQ(Window().size(), own);
    // A size that the user gives the window meanwhile is its own.
    Press(Qt::Key_Plus);
    const QSize chosen = Window().size() + QSize(11, 7);
    Window().resize(chosen);
    driver.Settle();
    Press(Qt::Key_0);
    EXPECT_EQ(Window().size(), chosen);
}

TEST_F(AppearanceOfTheWindow, AllWindowsGrow) {
    StartVatro();
    const double list = WidgetOf<QWidget>(frmB4->earlierContacts).font().pointSizeF();
    frmUTC.Load();
    const double dialogue = WidgetOf<QWidget>(frmUTC->okButton).font().pointSizeF();
    const double box = QMessageBox().font().pointSizeF();
    Press(Qt::Key_Plus);
    Press(Qt::Key_Plus);
    EXPECT_NEAR(WidgetOf<QWidget>(frmB4->earlierContacts).font().pointSizeF(), 1.2 * list, 0.01);
    // Windows that open later grow when they are about to be shown.
    WindowOf(*frmUTC).Top()->ensurePolished();
    EXPECT_NEAR(WidgetOf<QWidget>(frmUTC->okButton).font().pointSizeF(), 1.2 * dialogue, 0.01);
    QMessageBox later;
    later.ensurePolished();
    EXPECT_NEAR(later.font().pointSizeF(), 1.2 * box, 0.01);
    Press(Qt::Key_0);
    for (const Control* control : {static_cast<const Control*>(&frmB4->earlierContacts), static_cast<const Control*>(&frmUTC->okButton)})
        EXPECT_NEAR(WidgetOf<QWidget>(*control).font().pointSizeF(), control == &frmUTC->okButton ? dialogue : list, 0.01);
}

TEST_F(AppearanceOfTheWindow, AllFieldsStayInAWindowOfANetbookAtLargerText) {
    StartVatro();
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Plus);
    Window().resize(1000, 560);
    driver.Settle();
    const auto& room = dynamic_cast<const ScrollRoom&>(*Window().centralWidget());
    EXPECT_LE(room.Needed().width(), room.width());
    EXPECT_LE(room.Needed().height(), room.height());
    for (const Control* control : frmMain->TabOrder()) {
        const auto& widget = WidgetOf<QWidget>(*control);
        const QRect place(widget.mapTo(&Window(), QPoint()), widget.size());
        EXPECT_TRUE(Window().rect().contains(place)) << control->FullName();
        EXPECT_GE(widget.width(), widget.minimumSizeHint().width()) << control->FullName();
    }
}

TEST_F(AppearanceOfTheWindow, SpareWidthGoesToTheCallFieldAsFarAsACallNeedsIt) {
    StartVatro();
    const auto widths = [&] {
        std::vector<int> all;
        for (const TextBox& field : frmMain->fields) all.push_back(WidgetOf<QWidget>(field).width());
        return all;
    };
    const std::vector<int> usual = widths();
    Window().resize(Window().width() + 40, Window().height());
    driver.Settle();
    const std::vector<int> wider = widths();
    Window().resize(Window().width() + 1000, Window().height());
    driver.Settle();
    const std::vector<int> widest = widths();
    for (std::size_t i = 0; i < usual.size(); ++i) {
        if (i == kCallField) continue;
        EXPECT_EQ(wider[i], usual[i]) << i;
        EXPECT_EQ(widest[i], usual[i]) << i;
    }
    EXPECT_EQ(wider[kCallField], usual[kCallField] + 40);
    const int broadest = Call().fontMetrics().horizontalAdvance(QString(15, u'W'));
    EXPECT_GE(widest[kCallField], broadest);
    EXPECT_LE(widest[kCallField], 2 * broadest);
}

TEST_F(AppearanceOfTheWindow, HeadsStayOverTheirColumnsInEverySchemeAndSize) {
    StartVatro();
    const auto& head = WidgetOf<ColumnHead>(frmMain->columnHeads);
    const auto& list = WidgetOf<ItemList>(frmMain->log);
    const auto expectOver = [&](const std::string& look) {
        driver.Settle();
        const QList<ColumnHead::Piece> pieces = head.Pieces();
        ASSERT_EQ(pieces.size(), 10);
        qsizetype i = 0;
        for (const int column : {1, 7, 23, 32, 41, 44, 55, 62, 66, 72}) {
            const int left = list.viewport()->mapTo(&Window(), QPoint(list.ColumnLeft(column), 0)).x();
            EXPECT_EQ(head.mapTo(&Window(), QPoint(pieces[i].x, 0)).x(), left) << look << ", " << pieces[i].text.toStdString();
            ++i;
        }
    };
    expectOver("light");
    Sun().trigger();
    expectOver("sun");
    for (int step = 1; step <= 3; ++step) {
        Press(Qt::Key_Plus);
        expectOver("sun, text size " + std::to_string(step));
    }
    Sun().trigger();
    expectOver("light, text size 3");
}

TEST_F(AppearanceOfTheWindow, StartsAsItWasLeft) {
    settings.Write("Settings", "Solskin", "True");
    settings.Write("Settings", "TekstStr", "5");
    StartVatro();
    EXPECT_TRUE(Sun().isChecked());
    EXPECT_TRUE(Call().font().bold());
    const double large = Points();
    Press(Qt::Key_0);
    EXPECT_NEAR(large, Points() * 1.5, 0.01);
}

TEST_F(AppearanceOfTheWindow, HasAMenuOfItsOwnBeforeTheLastOne) {
    StartVatro();
    const QList<QAction*> menus = Window().menuBar()->actions();
    EXPECT_EQ(menus.at(menus.size() - 2)->text(), QStringLiteral("&Ekstra"));
    EXPECT_EQ(menus.last()->objectName(), ObjectName(frmMain->mnuHjælp));
}

TEST_F(AppearanceOfTheWindow, LeavesTheSettingsAloneUntilItIsUsed) {
    StartVatro();
    EXPECT_FALSE(settings.Read("Settings", "Solskin").has_value());
    EXPECT_FALSE(settings.Read("Settings", "TekstStr").has_value());
}

}  // namespace
}  // namespace vatro
