// SPDX-License-Identifier: MIT
#include "places.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include "desktop.h"
#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "frame/start.h"
#include "item_list.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

/// A window with one line, another one with no letters yet, and a list.
const std::vector<QRect> kWindows{{0, 0, 1100, 200}, {0, 0, 40, 200}, {130, 130, 400, 400}};

/// The part of a main window at (66, 66) above its fields, which begin in row kEntry.
constexpr int kEntry = 430;
const QRect kUpper(QPoint(66, 0), QPoint(985, kEntry - 1));

TEST(BesideMain, LeavesTheMainWindowFreeOnALargeScreen) {
    const QRect screen(0, 0, 1920, 1080);
    const QRect main(66, 66, 920, 480);
    const std::vector<QRect> places = BesideMain(screen, main, kUpper, kWindows);
    // Below the main window each gets half of the screen, with a height of 960 * 200 / 1100. The list beside it keeps its size.
    EXPECT_EQ(places, (std::vector<QRect>{{0, 546, 957, 174}, {960, 546, 34, 174}, {986, 0, 400, 400}}));
    for (const QRect& place : places) EXPECT_FALSE(place.intersects(main));
}

TEST(BesideMain, CutsWindowsToTheRoomThereIs) {
    // 110 rows of pixels below, and 280 columns beside.
    const std::vector<QRect> places = BesideMain({0, 0, 1266, 656}, {66, 66, 920, 480}, kUpper, kWindows);
    EXPECT_EQ(places, (std::vector<QRect>{{0, 546, 605, 110}, {633, 546, 22, 110}, {986, 0, 280, 400}}));
}

TEST(BesideMain, KeepsToTheSideOfABottomThatHasNoRoom) {
    // Both go to the right, the line above the list: 414 * 200 / 1100 rows for 414 columns.
    const std::vector<QRect> places = BesideMain({0, 0, 1400, 600}, {66, 66, 920, 480}, kUpper, {kWindows[0], kWindows[2]});
    EXPECT_EQ(places, (std::vector<QRect>{{986, 0, 412, 75}, {986, 75, 400, 400}}));
}

TEST(BesideMain, TakesTheRoomAboveAndOnTheLeftToo) {
    // Each line gets half of the screen, so 683 * 200 / 1100 rows.
    EXPECT_EQ(BesideMain({0, 0, 1366, 768}, {367, 217, 999, 551}, {400, 300, 500, 200}, kWindows),
              (std::vector<QRect>{{0, 0, 682, 124}, {683, 0, 24, 124}, {0, 217, 367, 400}}));
    // Beside a main window as high as the screen: 400 * 200 / 1100 rows for each line.
    EXPECT_EQ(BesideMain({0, 0, 1024, 600}, {400, 0, 624, 600}, {500, 100, 500, 200}, kWindows),
              (std::vector<QRect>{{0, 0, 396, 72}, {0, 72, 14, 72}, {0, 144, 400, 400}}));
    // Below a main window as wide as the screen the list gets a third of the width.
    EXPECT_EQ(BesideMain({0, 0, 1024, 600}, {0, 0, 1024, 400}, {0, 100, 1024, 200}, kWindows),
              (std::vector<QRect>{{0, 400, 341, 62}, {341, 400, 12, 62}, {682, 400, 342, 200}}));
}

TEST(BesideMain, KeepsToTheRightOfTheLog) {
    const QRect full(0, 0, 1024, 600);
    EXPECT_EQ(BesideMain(full, full, {200, 100, 820, 300}, {kWindows[2]}), (std::vector<QRect>{{620, 100, 400, 300}}));
    EXPECT_EQ(BesideMain(full, full, {200, 100, 820, 300}, {{0, 0, 500, 100}}), (std::vector<QRect>{{520, 100, 500, 100}}));
}

TEST(BesideMain, NeverCoversTheEntryFields) {
    for (const QSize size :
         {QSize(1024, 600), QSize(1024, 768), QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
        const QRect main(66, 66, 920, 480);
        const QRect free(QPoint(main.left(), kEntry), main.bottomRight());
        const std::vector<QRect> places = BesideMain({QPoint(), size}, main, kUpper, kWindows);
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_FALSE(places[i].intersects(free)) << size.width() << " window " << i;
            EXPECT_TRUE(QRect(QPoint(), size).contains(places[i])) << size.width() << " window " << i;
            for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(places[i].intersects(places[j])) << size.width() << ": " << i << ", " << j;
        }
    }
}

/// Number and call stand in the upper left corner of the log.
TEST(BesideMain, KeepsOffWindowsThatStayWhereTheyAre) {
    const QRect screen(0, 0, 1024, 600);
    const QRect main(0, 0, 1024, 600);
    const QRect upper(QPoint(0, 100), QPoint(1023, kEntry - 1));
    const std::vector<QRect> taken{{10, 110, 300, 110}, {320, 110, 300, 110}};
    EXPECT_EQ(BesideMain(screen, main, upper, {{0, 0, 300, 200}}, taken), (std::vector<QRect>{{724, 100, 300, 200}}));
    // Another one stands where the list would go.
    EXPECT_EQ(BesideMain(screen, main, upper, {{0, 0, 300, 200}}, {{800, 100, 100, 80}}), (std::vector<QRect>{{500, 100, 300, 200}}));
    // A window that covers nothing stays where it would go otherwise.
    EXPECT_EQ(BesideMain(screen, main, upper, {{0, 0, 300, 200}}, {{300, 100, 100, 80}}),
              BesideMain(screen, main, upper, {{0, 0, 300, 200}}));
    // Two that are moved keep off each other.
    const std::vector<QRect> two = BesideMain(screen, main, upper, {{0, 0, 300, 100}, {0, 0, 300, 100}}, taken);
    EXPECT_FALSE(two[0].intersects(two[1]));
    // Free room outside the main window comes first.
    EXPECT_EQ(BesideMain({0, 0, 1024, 600}, {0, 200, 1024, 400}, {0, 300, 1024, 130}, {{0, 0, 300, 120}}, {{0, 300, 300, 100}}),
              (std::vector<QRect>{{0, 0, 300, 120}}));
}

TEST(BesideMain, HasNothingToDoWithoutWindows) {
    EXPECT_TRUE(BesideMain({0, 0, 1920, 1080}, {66, 66, 920, 480}, kUpper, {}).empty());
}

TEST(OnScreens, NeedsHalfOfTheWindowAndOfItsTitle) {
    const std::vector<QRect> screens{{0, 0, 1024, 600}, {1024, 0, 1024, 600}};
    const auto seen = [&](int left, int top) { return OnScreens({left, top, 400, 200}, 20, screens); };
    EXPECT_TRUE(seen(0, 0));
    EXPECT_TRUE(seen(100, 499));
    EXPECT_FALSE(seen(100, 501));
    EXPECT_TRUE(seen(1800, 100));
    EXPECT_FALSE(seen(1900, 100));
    EXPECT_FALSE(seen(100, -21)) << "a window without its title cannot be moved";
    EXPECT_FALSE(seen(-5000, -5000));
}

class PlacesOfWindows : public WindowProgram {
protected:
    void Stored(const char* name, int left, int top, int width, int height) {
        const std::string key = std::string("SETTINGS/") + name;
        settings.texts[key + "LEFT"] = std::to_string(left * kTwipsPerPixel);
        settings.texts[key + "TOP"] = std::to_string(top * kTwipsPerPixel);
        settings.texts[key + "WIDTH"] = std::to_string(width * kTwipsPerPixel);
        settings.texts[key + "HEIGHT"] = std::to_string(height * kTwipsPerPixel);
    }
    QWidget& Top(const Form& form) const { return *WindowOf(form).Top(); }
    QRect Fields() const {
        QRect fields;
        for (const Control* control : std::initializer_list<const Control*>{&frmMain->fields[0], &frmMain->operatorBox}) {
            const auto& widget = WidgetOf<QWidget>(*control);
            fields |= QRect(widget.mapToGlobal(QPoint()), widget.size());
        }
        return fields;
    }
    bool InSight(const Form& form) const {
        const QWidget& top = Top(form);
        return top.screen()->availableGeometry().contains(top.geometry()) && !top.frameGeometry().intersects(Fields());
    }

    /// Long enough for the window manager.
    void Rest() {
        QTest::qWait(400);
        driver.Settle();
    }

    QtHelp handbook;
    Desktop desktop{dynamic_cast<QtFront&>(driver.ProgramFront()), handbook};
    Places places{dynamic_cast<QtFront&>(driver.ProgramFront())};
};

TEST_F(PlacesOfWindows, AStoredPlaceOverTheFieldsOrOutsideTheScreenIsLentAnother) {
    Stored("B4", 150, 380, 300, 200);
    Stored("QSO", 5000, 3000, 300, 100);
    StartVatro();
    for (const Form* form : std::initializer_list<const Form*>{&*frmB4, &*frmQSOnr}) EXPECT_TRUE(InSight(*form)) << form->Name();
    // The program keeps the places that were stored.
    EXPECT_EQ(frmB4->Left(), 150 * kTwipsPerPixel);
    EXPECT_EQ(frmB4->Top(), 380 * kTwipsPerPixel);
    EXPECT_EQ(frmQSOnr->Left(), 5000 * kTwipsPerPixel);
    EndProgram();
    EXPECT_EQ(settings.Read("Settings", "QSOTop"), std::to_string(3000 * kTwipsPerPixel));
}

TEST_F(PlacesOfWindows, AWindowHasRoomForItsRowsOverALowLog) {
    Stored("B4", 5000, 3000, 300, 200);
    StartVatro();
    Top(*frmMain).setGeometry(QRect(0, 420, 800, 380));
    QTest::qWait(400);
    ASSERT_LT(WidgetOf<QWidget>(frmMain->log).height(), 170);
    EXPECT_TRUE(InSight(*frmB4));
    EXPECT_GE(Top(*frmB4).height(), 150);
}

TEST_F(PlacesOfWindows, OverTheLogTheCallsStayInSight) {
    settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
    StartVatro();
    Top(*frmMain).showMaximized();
    Rest();
    const auto& log = WidgetOf<ItemList>(frmMain->log);
    // A contact begins with the time and 16 columns for the call.
    const QRect calls(log.mapToGlobal(QPoint()), QSize(log.ColumnLeft(23), log.height()));
    for (const Form* form : std::initializer_list<const Form*>{&*frmB4, &*frmQSOnr, &*frmContestCall}) {
        EXPECT_TRUE(InSight(*form)) << form->Name();
        EXPECT_FALSE(Top(*form).frameGeometry().intersects(calls)) << form->Name();
    }
}

TEST_F(PlacesOfWindows, LentPlacesDoNotOverlap) {
    for (const char* name : {"B4", "QSO", "CALL"}) Stored(name, 5000, 3000, 300, 60);
    settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
    StartVatro();
    const auto overlap = [this](const Form& one, const Form& other) {
        return Top(one).frameGeometry().intersects(Top(other).frameGeometry());
    };
    const auto apart = [&] {
        return !overlap(*frmB4, *frmQSOnr) && !overlap(*frmB4, *frmContestCall) && !overlap(*frmQSOnr, *frmContestCall);
    };
    EXPECT_TRUE(QTest::qWaitFor(apart));
    // A longer text needs a wider window.
    Dispatch([] { frmQSOnr->visDupe(); });
    EXPECT_TRUE(QTest::qWaitFor(apart));
}

TEST_F(PlacesOfWindows, LentPlacesCoverNoWindowThatStaysInItsOwn) {
    settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
    settings.texts["SETTINGS/MAINLEFT"] = "0";
    settings.texts["SETTINGS/MAINTOP"] = "0";
    Stored("QSO", 10, 100, 300, 60);
    Stored("CALL", 10, 190, 300, 60);
    Stored("B4", 5000, 3000, 300, 200);
    StartVatro();
    EXPECT_TRUE(QTest::qWaitFor([&] { return InSight(*frmB4); }));
    QTest::qWait(500);
    EXPECT_TRUE(InSight(*frmB4));
    for (const Form* form : std::initializer_list<const Form*>{&*frmQSOnr, &*frmContestCall}) {
        EXPECT_EQ(Top(*form).x(), 10) << form->Name();
        EXPECT_FALSE(Top(*form).frameGeometry().intersects(Top(*frmB4).frameGeometry())) << form->Name();
    }
}

TEST_F(PlacesOfWindows, AWindowThatNobodyHasMovedIsNotShownOnTopOfAnother) {
    settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
    StartVatro();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Top(*frmQSOnr).frameGeometry().intersects(Top(*frmContestCall).frameGeometry()); }));
    EXPECT_EQ(frmQSOnr->Left(), 0) << "its own place is the usual one";
}

TEST_F(PlacesOfWindows, AStoredPlaceInSightIsKept) {
    Stored("B4", 60, 10, 120, 80);
    StartVatro();
    EXPECT_EQ(Top(*frmB4).pos(), QPoint(60, 10));
    EXPECT_EQ(Top(*frmB4).size(), QSize(120, 80));
}

TEST_F(PlacesOfWindows, AWindowThatTheUserMovesIsStoredThere) {
    Stored("B4", 5000, 3000, 120, 80);
    StartVatro();
    // A window manager may still be putting the window in its place.
    Top(*frmB4).move(Top(*frmB4).pos() + QPoint(1, 1));
    driver.Settle();
    EXPECT_EQ(frmB4->Left(), 5000 * kTwipsPerPixel);
    QTest::qWait(2000);
    Top(*frmB4).move(20, 30);
    driver.Settle();
    EXPECT_EQ(frmB4->Left(), 20 * kTwipsPerPixel);
    EXPECT_EQ(frmB4->Top(), 30 * kTwipsPerPixel);
}

TEST_F(PlacesOfWindows, APlaceToWhichTheWindowManagerPushesAWindowIsNotStored) {
    Stored("QSO", 302, 20, 300, 60);
    settings.texts["SETTINGS/QSOLEFT"] = std::to_string(302 * kTwipsPerPixel + 2);
    StartVatro();
    QWidget& number = Top(*frmQSOnr);
    number.move(290, 20);
    EXPECT_EQ(frmQSOnr->Left(), 302 * kTwipsPerPixel + 2);
    Rest();
    EXPECT_EQ(frmQSOnr->Left(), 302 * kTwipsPerPixel + 2);
    // The user moves it down.
    number.move(290, 30);
    EXPECT_EQ(frmQSOnr->Left(), 302 * kTwipsPerPixel + 2);
    EXPECT_EQ(frmQSOnr->Top(), 30 * kTwipsPerPixel);
    Rest();
    number.move(280, 30);
    EXPECT_EQ(frmQSOnr->Left(), 280 * kTwipsPerPixel);
}

TEST_F(PlacesOfWindows, AWarningLeavesTheNumberWindowWhereItWas) {
    Stored("QSO", 302, 20, 300, 60);
    StartVatro();
    QWidget& number = Top(*frmQSOnr);
    number.move(300, 25);
    Rest();
    number.move(310, 26);
    ASSERT_EQ(frmQSOnr->Left(), 310 * kTwipsPerPixel) << "moved by the user";
    Rest();
    for (int i = 0; i < 2; ++i) {
        Dispatch([] { frmQSOnr->visDupe(); });
        // The window manager does not let the wider window reach over the edge.
        number.move(282, 26);
        Rest();
        EXPECT_EQ(number.x(), 282);
        Dispatch([] { frmQSOnr->visQSOnr(); });
        EXPECT_EQ(number.pos(), QPoint(310, 26));
        EXPECT_EQ(frmQSOnr->Left(), 310 * kTwipsPerPixel);
        Rest();
    }
    // The user takes it away while it is pushed.
    Dispatch([] { frmQSOnr->visDupe(); });
    number.move(282, 26);
    Rest();
    number.move(100, 26);
    Dispatch([] { frmQSOnr->visQSOnr(); });
    EXPECT_EQ(number.x(), 100);
    EXPECT_EQ(frmQSOnr->Left(), 100 * kTwipsPerPixel);
}

TEST_F(PlacesOfWindows, AHeightThatTheUserDragsIsToldAllTheTime) {
    Stored("QSO", 100, 20, 300, 60);
    StartVatro();
    Rest();
    QWidget& number = Top(*frmQSOnr);
    for (const int height : {62, 66, 71}) {
        number.resize(number.width(), height);
        EXPECT_EQ(frmQSOnr->Height(), height * kTwipsPerPixel);
    }
    EXPECT_EQ(frmQSOnr->Left(), 100 * kTwipsPerPixel);
}

TEST_F(PlacesOfWindows, ATextThatGrowsStaysInTheLentPlace) {
    Stored("QSO", 5000, 3000, 300, 60);
    StartVatro();
    const int height = Top(*frmQSOnr).height();
    Dispatch([] { frmQSOnr->visDupe(); });
    driver.Settle();
    EXPECT_LE(Top(*frmQSOnr).height(), height);
    EXPECT_TRUE(InSight(*frmQSOnr));
    EXPECT_EQ(frmQSOnr->Left(), 5000 * kTwipsPerPixel);
}

TEST_F(PlacesOfWindows, AMaximisedMainWindowPushesThemAsideAndLetsThemBack) {
    Stored("B4", 60, 10, 120, 80);
    StartVatro();
    Rest();
    QWidget& main = Top(*frmMain);
    main.resize(300, 250);
    const QPoint corner = main.screen()->availableGeometry().bottomRight() - QPoint(150, 110);
    Top(*frmB4).move(corner);
    driver.Settle();
    for (int i = 0; i < 2; ++i) {
        main.showMaximized();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Top(*frmB4).pos() != corner && InSight(*frmB4); }));
        EXPECT_EQ(frmB4->Left(), corner.x() * kTwipsPerPixel);
        main.showNormal();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Top(*frmB4).pos() == corner; }));
    }
}

/// The main window, moved by its user and by the window manager. The stored place is no whole number of pixels.
class PlaceOfTheMainWindow : public PlacesOfWindows {
protected:
    static constexpr int kLeft = 302;
    static constexpr int kTop = 454;
    PlaceOfTheMainWindow() {
        settings.texts["SETTINGS/MAINLEFT"] = std::to_string(kLeft);
        settings.texts["SETTINGS/MAINTOP"] = std::to_string(kTop);
        settings.Write("Vindue", "Bredde", "500");
        settings.Write("Vindue", "Hojde", "400");
        StartVatro();
    }
    QWidget& Main() const { return Top(*frmMain); }
    void ExpectPlace(int left, int top) {
        EXPECT_EQ(frmMain->Left(), left);
        EXPECT_EQ(frmMain->Top(), top);
    }
};

TEST_F(PlaceOfTheMainWindow, IsNotThatAtWhichTheWindowManagerShowsIt) {
    Main().move(Main().pos() + QPoint(5, 26));
    ExpectPlace(kLeft, kTop);
    Rest();
    ExpectPlace(kLeft, kTop);
    StoreRunningProgram();
    EXPECT_EQ(settings.Read("Settings", "MainLeft"), std::to_string(kLeft));
}

TEST_F(PlaceOfTheMainWindow, IsNotThatOfAMaximisedOrRestoredWindow) {
    Rest();
    Main().showMaximized();
    Main().move(0, 24);
    Rest();
    Main().move(0, 0);
    Main().showNormal();
    Main().move(15, 25);
    ExpectPlace(kLeft, kTop);
    Rest();
    ExpectPlace(kLeft, kTop);
}

TEST_F(PlaceOfTheMainWindow, IsNotThatOfAWindowThatIsMovedBeforeItIsMaximised) {
    Rest();
    const QRect normal = Main().geometry();
    Main().setGeometry(Main().screen()->availableGeometry());
    Main().showMaximized();
    ExpectPlace(kLeft, kTop);
    Rest();
    Main().setGeometry(normal);
    Main().showNormal();
    Rest();
    ExpectPlace(kLeft, kTop);
}

TEST_F(PlaceOfTheMainWindow, IsStoredAtOnceWhenTheUserMovesIt) {
    Rest();
    Main().move(40, 50);
    StoreRunningProgram();
    EXPECT_EQ(settings.Read("Settings", "MainLeft"), std::to_string(40 * kTwipsPerPixel));
    EXPECT_EQ(settings.Read("Settings", "MainTop"), std::to_string(50 * kTwipsPerPixel));
}

TEST_F(PlaceOfTheMainWindow, ChangesOnlyInTheDirectionInWhichTheUserMovesIt) {
    Main().move(Main().pos() + QPoint(5, 26));
    Rest();
    Main().move(40, Main().y());
    ExpectPlace(40 * kTwipsPerPixel, kTop);
    Rest();
    Main().showMaximized();
    Rest();
    ExpectPlace(40 * kTwipsPerPixel, kTop);
}

TEST_F(PlacesOfWindows, AMainWindowOutsideTheScreenIsShownOnIt) {
    settings.texts["SETTINGS/MAINLEFT"] = "90000";
    settings.texts["SETTINGS/MAINTOP"] = "45000";
    StartVatro();
    const QRect screen = Top(*frmMain).screen()->availableGeometry();
    const QRect window = Top(*frmMain).geometry();
    // The width of the frame is not known before the window is on the screen.
    EXPECT_TRUE(screen.contains(window.adjusted(0, 0, -5, -5))) << window.width() << 'x' << window.height();
    StoreRunningProgram();
    EXPECT_EQ(settings.Read("Settings", "MainLeft"), "90000");
    EXPECT_EQ(settings.Read("Settings", "MainTop"), "45000");
}

}  // namespace
}  // namespace vatro
