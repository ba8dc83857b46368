// SPDX-License-Identifier: MIT
#include "main_size.h"

#include <gtest/gtest.h>

#include <QListView>
#include <QMainWindow>
#include <QScreen>
#include <QTest>

#include "desktop.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "places.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

class SizeOfTheMainWindow : public WindowProgram {
protected:
    QMainWindow& Window() { return dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top()); }
    bool Becomes(const char* key, const std::string& value) {
        return QTest::qWaitFor([&] { return settings.Read("Vindue", key) == value; });
    }
    /// Long enough for the window manager, which may still be changing the size of a window that was shown.
    void Rest() {
        QTest::qWait(400);
        driver.Settle();
    }
    void ExpectOwn(const QSize& wanted) {
        Rest();
        EXPECT_EQ(OwnSize(Window()).width(), wanted.width());
        EXPECT_EQ(OwnSize(Window()).height(), wanted.height());
    }
    void ExpectStored(const QSize& wanted) {
        QTest::qWait(1300);
        EXPECT_EQ(settings.Read("Vindue", "Bredde"), std::to_string(wanted.width()));
        EXPECT_EQ(settings.Read("Vindue", "Hojde"), std::to_string(wanted.height()));
    }

    MainSize size{dynamic_cast<QtFront&>(driver.ProgramFront()), settings};
};

TEST_F(SizeOfTheMainWindow, IsStoredWhenTheWindowHasComeToRest) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Rest();
    const QSize wanted = Window().minimumSizeHint() + QSize(30, 20);
    Window().resize(wanted);
    EXPECT_TRUE(Becomes("Bredde", std::to_string(wanted.width())));
    EXPECT_TRUE(Becomes("Hojde", std::to_string(wanted.height())));
}

TEST_F(SizeOfTheMainWindow, ComesBackAtTheNextStart) {
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    settings.Write("Vindue", "Bredde", std::to_string(screen.width() - 10));
    settings.Write("Vindue", "Hojde", std::to_string(screen.height() - 20));
    StartVatro();
    EXPECT_EQ(Window().width(), screen.width() - 10);
    EXPECT_EQ(Window().height(), screen.height() - 20);
}

TEST_F(SizeOfTheMainWindow, OfALargerScreenFillsASmallOneAndIsKeptForTheLargerOne) {
    settings.Write("Vindue", "Bredde", "1632");
    settings.Write("Vindue", "Hojde", "884");
    StartVatro();
    EXPECT_TRUE(Window().isMaximized());
    QTest::qWait(1200);
    EXPECT_EQ(settings.Read("Vindue", "Bredde"), "1632");
}

TEST_F(SizeOfTheMainWindow, IsKeptWhenTheWindowManagerReducesTheWindow) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Window().resize(500, 380);
    ExpectStored({500, 400});
    // The user makes it wider.
    Window().resize(520, 380);
    ExpectOwn({520, 400});
    Window().resize(520, 390);
    ExpectOwn({520, 390});
    Window().resize(520, 380);
    ExpectStored({520, 380});
}

TEST_F(SizeOfTheMainWindow, IsThatOfBeforeWhenItWasMaximised) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Rest();
    // Some window managers give it the size before they announce that it is maximised.
    Window().resize(Window().screen()->availableSize());
    Window().showMaximized();
    ExpectOwn({500, 400});
    Window().showNormal();
    Window().resize(490, 380);
    ExpectStored({500, 400});
}

TEST_F(SizeOfTheMainWindow, IsThatOfTheUserAlsoWhenTheTextGrowsInAReducedWindow) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Window().resize(500, 380);
    Rest();
    Grow(Window(), {550, 390});
    EXPECT_EQ(Window().width(), 550);
    ExpectOwn({500, 400});
}

TEST_F(SizeOfTheMainWindow, IsNoLargerThanTheScreen) {
    settings.Write("Vindue", "Bredde", "99999999");
    settings.Write("Vindue", "Hojde", "99999999");
    StartVatro();
    const QSize screen = Window().screen()->availableSize();
    EXPECT_LE(Window().width(), screen.width());
    EXPECT_LE(Window().height(), screen.height());
}

TEST(FirstSize, SuitsTheScreen) {
    const QSize layout(920, 560);
    EXPECT_EQ(FirstSize(layout, {1024, 600}), std::nullopt) << "fills it";
    EXPECT_EQ(FirstSize(layout, {1366, 740}), QSize(1161, 629));
    EXPECT_EQ(FirstSize(layout, {1920, 1040}), QSize(1632, 884));
    EXPECT_EQ(FirstSize({1300, 560}, {1250, 700}), QSize(1250, 595));
}

TEST_F(SizeOfTheMainWindow, FillsASmallScreenAtAFirstStartOrWithoutASensibleSetting) {
    settings.Write("Vindue", "Bredde", "-5");
    settings.Write("Vindue", "Hojde", "wide");
    settings.Write("Vindue", "Tilstand", "wide");
    StartVatro();
    EXPECT_TRUE(Window().isMaximized());
    EXPECT_FALSE(Window().isFullScreen());
}

TEST_F(SizeOfTheMainWindow, RemembersThatItWasMaximised) {
    settings.Write("Vindue", "Tilstand", "maksimeret");
    StartVatro();
    EXPECT_TRUE(Window().isMaximized());
    Window().showNormal();
    EXPECT_TRUE(Becomes("Tilstand", ""));
}

TEST_F(SizeOfTheMainWindow, IsNotStoredAsMaximisedByASmallScreen) {
    for (const char* width : {"", "1632"}) {
        settings.Write("Vindue", "Bredde", width);
        settings.Write("Vindue", "Hojde", width);
        StartVatro();
        ASSERT_TRUE(Window().isMaximized()) << width;
        QTest::qWait(1300);
        EXPECT_EQ(settings.Read("Vindue", "Tilstand").value_or(""), "") << width;
        EXPECT_EQ(settings.Read("Vindue", "Bredde").value_or(""), width) << "nobody has chosen another size";
        EndProgram();
        driver.Settle();
        EXPECT_EQ(settings.Read("Vindue", "Tilstand").value_or(""), "") << width;
    }
}

TEST_F(SizeOfTheMainWindow, IsStoredAsMaximisedByItsUserOnASmallScreen) {
    StartVatro();
    ASSERT_TRUE(Window().isMaximized());
    Rest();
    Window().showNormal();
    Rest();
    Window().showMaximized();
    EXPECT_TRUE(Becomes("Tilstand", "maksimeret"));
}

TEST_F(SizeOfTheMainWindow, OnASmallScreenIsFullScreenWithoutBeingMaximised) {
    StartVatro();
    ASSERT_TRUE(Window().isMaximized());
    Rest();
    QTest::keyClick(&Window(), Qt::Key_F11);
    EXPECT_TRUE(Becomes("Tilstand", "hele"));
}

TEST_F(SizeOfTheMainWindow, IsFullScreenAlsoWhenTheWindowIsMinimisedAtOnce) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Rest();
    QTest::keyClick(&Window(), Qt::Key_F11);
    // The screen may be lost at any time.
    EXPECT_EQ(settings.Read("Vindue", "Tilstand"), "hele");
    // Some window managers take the other states away from a minimised window.
    Window().setWindowState(Qt::WindowMinimized);
    QTest::qWait(1300);
    EXPECT_EQ(settings.Read("Vindue", "Tilstand"), "hele");
    EXPECT_EQ(settings.Read("Vindue", "Bredde"), "500");
}

TEST_F(SizeOfTheMainWindow, IsMaximisedAgainAfterFullScreenAndARestart) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    settings.Write("Vindue", "Tilstand", "maksimeret");
    for (int start = 0; start < 2; ++start) {
        StartVatro();
        if (start == 0) QTest::keyClick(&Window(), Qt::Key_F11);
        EXPECT_TRUE(Window().isFullScreen());
        QTest::qWait(1300);
        EXPECT_EQ(settings.Read("Vindue", "Tilstand"), "maksimeret hele");
        if (start == 0) EndProgram();
        driver.Settle();
    }
    QTest::keyClick(&Window(), Qt::Key_F11);
    driver.Settle();
    EXPECT_FALSE(Window().isFullScreen());
    EXPECT_TRUE(Window().isMaximized());
    EXPECT_TRUE(Becomes("Tilstand", "maksimeret"));
}

TEST_F(SizeOfTheMainWindow, IsMaximisedAfterFullScreenWhateverTheWindowManagerMakesOfIt) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    settings.Write("Vindue", "Tilstand", "maksimeret");
    StartVatro();
    Rest();
    QTest::keyClick(&Window(), Qt::Key_F11);
    Window().setWindowState(Qt::WindowNoState);
    Window().setWindowState(Qt::WindowFullScreen);
    EXPECT_TRUE(Becomes("Tilstand", "maksimeret hele"));
    QTest::keyClick(&Window(), Qt::Key_F11);
    EXPECT_TRUE(Window().isMaximized());
}

TEST_F(SizeOfTheMainWindow, FillsTheScreenWithF11AndGoesBack) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    QTest::keyClick(&Window(), Qt::Key_F11);
    driver.Settle();
    EXPECT_TRUE(Window().isFullScreen());
    EXPECT_TRUE(Becomes("Tilstand", "hele"));
    QTest::keyClick(&Window(), Qt::Key_F11);
    driver.Settle();
    EXPECT_FALSE(Window().isFullScreen());
    EXPECT_TRUE(Becomes("Tilstand", ""));
}

TEST_F(SizeOfTheMainWindow, LeavesTheNewestContactInSight) {
    settings.texts["SETTINGS/BAND"] = "80m";
    settings.texts["SETTINGS/MODE"] = "CW";
    settings.texts["SETTINGS/QSOMODE"] = "CW";
    files.files["LOG\\FD80MCW.TXT"] =
        std::vector<std::string>(200, "13:00 DL9XYZ          599-0001 599-0012  3 DL         OZ1DEF     CW    05-09-26");
    StartVatro();
    auto& log = WidgetOf<QListView>(frmMain->log);
    const auto seen = [&log] {
        const QModelIndex newest = log.model()->index(log.model()->rowCount() - 1, 0);
        return log.viewport()->rect().contains(log.visualRect(newest));
    };
    ASSERT_GE(log.model()->rowCount(), 200);
    ASSERT_TRUE(QTest::qWaitFor(seen));
    for (const int height : {700, 450, 600, 380}) {
        Window().resize(Window().width(), height);
        driver.Settle();
        EXPECT_TRUE(QTest::qWaitFor(seen)) << height;
    }
}

/// The place and the size are those of a larger screen, on which the window was wholly in sight.
class OnASmallerScreen : public SizeOfTheMainWindow {
protected:
    OnASmallerScreen() {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        own = QRect(screen.width() / 4, screen.height() / 4, screen.width() - 50, screen.height() - 50);
        settings.texts["SETTINGS/MAINLEFT"] = std::to_string(own.x() * kTwipsPerPixel + 2);
        settings.texts["SETTINGS/MAINTOP"] = std::to_string(own.y() * kTwipsPerPixel + 2);
        settings.Write("Vindue", "Bredde", std::to_string(own.width()));
        settings.Write("Vindue", "Hojde", std::to_string(own.height()));
    }
    void ExpectOnScreenAndStored(const char* when) {
        Rest();
        const QRect screen = Window().screen()->availableGeometry();
        const QRect window = Window().geometry();
        // The width of the frame is not known before the window is on the screen.
        EXPECT_TRUE(screen.contains(window.adjusted(0, 0, -5, -5)))
            << when << ": " << window.x() << ' ' << window.y() << ' ' << window.width() << 'x' << window.height();
        ExpectStored(own.size());
        StoreRunningProgram();
        EXPECT_EQ(settings.Read("Settings", "MainLeft"), std::to_string(own.x() * kTwipsPerPixel + 2)) << when;
        EXPECT_EQ(settings.Read("Settings", "MainTop"), std::to_string(own.y() * kTwipsPerPixel + 2)) << when;
    }

    QRect own;
    QtHelp handbook;
    Desktop desktop{dynamic_cast<QtFront&>(driver.ProgramFront()), handbook};
    Places places{dynamic_cast<QtFront&>(driver.ProgramFront())};
};

TEST_F(OnASmallerScreen, AWindowThatWasLargeAtTheStartIsRestoredWithinIt) {
    for (const char* state : {"hele", "maksimeret"}) {
        settings.Write("Vindue", "Tilstand", state);
        StartVatro();
        Rest();
        Window().showNormal();
        ExpectOnScreenAndStored(state);
        EndProgram();
        driver.Settle();
    }
}

TEST_F(OnASmallerScreen, TheTextKeysKeepTheWindowWithinItAndItsPlaceStored) {
    StartVatro();
    ExpectOnScreenAndStored("at the start");
    const QRect before = Window().geometry();
    QTest::keyClick(&Window(), Qt::Key_0, Qt::ControlModifier);
    ExpectOnScreenAndStored("Ctrl+0");
    EXPECT_EQ(Window().geometry(), before);
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&Window(), Qt::Key_Plus, Qt::ControlModifier);
        ExpectOnScreenAndStored("Ctrl+plus");
    }
    QTest::keyClick(&Window(), Qt::Key_0, Qt::ControlModifier);
    ExpectOnScreenAndStored("Ctrl+0 after Ctrl+plus");
    EXPECT_EQ(Window().geometry(), before);
}

TEST_F(OnASmallerScreen, APlaceAfterTheProgramHasChangedTheSizeIsNotTheOwnOne) {
    StartVatro();
    Rest();
    Grow(Window(), Window().size() + QSize(30, 20));
    Window().move(Window().pos() - QPoint(10, 10));
    ExpectOnScreenAndStored("moved");
}

TEST_F(SizeOfTheMainWindow, IsGivenBackToAWindowThatTheUserHasMovedPartlyOutside) {
    settings.Write("Vindue", "Bredde", "500");
    settings.Write("Vindue", "Hojde", "400");
    StartVatro();
    Rest();
    const QRect screen = Window().screen()->availableGeometry();
    Window().move(screen.right() - 300, screen.top() + 10);
    Rest();
    const QSize before = Window().size();
    for (const QSize needed : {QSize(), before + QSize(50, 50), QSize()}) {
        Grow(Window(), needed);
        Rest();
    }
    EXPECT_EQ(Window().size(), before);
    EXPECT_EQ(Window().x(), screen.right() - 300);
}

}  // namespace
}  // namespace vatro
