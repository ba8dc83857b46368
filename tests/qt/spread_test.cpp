// SPDX-License-Identifier: MIT
#include "spread.h"

#include <QWidget>

#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "qt/window_program.h"

namespace vatro {
namespace {

/// A window with one line, another one with no letters yet, and a list.
const std::vector<QRect> kWindows{{0, 0, 1100, 200}, {0, 0, 40, 200}, {130, 130, 400, 400}};

TEST(BesideMain, LeavesTheMainWindowFreeOnALargeScreen) {
    const QRect screen(0, 0, 1920, 1080);
    const QRect main(66, 66, 920, 480);
    const std::vector<QRect> places = BesideMain(screen, main, 430, kWindows);
    // Below the main window each gets half of the screen, with a height of 960 * 200 / 1100. The list beside it keeps its size.
    EXPECT_EQ(places, (std::vector<QRect>{{0, 546, 957, 174}, {960, 546, 34, 174}, {986, 0, 400, 400}}));
    for (const QRect& place : places) EXPECT_FALSE(place.intersects(main));
}

TEST(BesideMain, CutsWindowsToTheRoomThereIs) {
    // 110 rows of pixels below, and 280 columns beside.
    const std::vector<QRect> places = BesideMain({0, 0, 1266, 656}, {66, 66, 920, 480}, 430, kWindows);
    EXPECT_EQ(places, (std::vector<QRect>{{0, 546, 605, 110}, {633, 546, 22, 110}, {986, 0, 280, 400}}));
}

TEST(BesideMain, KeepsToTheSideOfABottomThatHasNoRoom) {
    const std::vector<QRect> places = BesideMain({0, 0, 1400, 600}, {66, 66, 920, 480}, 430, {kWindows[0], kWindows[2]});
    EXPECT_EQ(places, (std::vector<QRect>{{66, 0, 918, 167}, {986, 0, 400, 400}}));
}

TEST(BesideMain, NeverCoversTheEntryFields) {
    for (const QSize size :
         {QSize(1024, 600), QSize(1024, 768), QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
        const QRect main(66, 66, 920, 480);
        const QRect free(QPoint(main.left(), 430), main.bottomRight());
        const std::vector<QRect> places = BesideMain({QPoint(), size}, main, 430, kWindows);
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_FALSE(places[i].intersects(free)) << size.width() << " window " << i;
            EXPECT_TRUE(QRect(QPoint(), size).contains(places[i])) << size.width() << " window " << i;
            for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(places[i].intersects(places[j])) << size.width() << ": " << i << ", " << j;
        }
    }
}

TEST(BesideMain, HasNothingToDoWithoutWindows) {
    EXPECT_TRUE(BesideMain({0, 0, 1920, 1080}, {66, 66, 920, 480}, 430, {}).empty());
}

TEST_F(WindowProgram, SpreadWindowsAreWhereTheFormsSay) {
    StartVatro();
    Dispatch([] {
        frmQSOnr->Show();
        frmB4->Show();
    });
    driver.Settle();
    SpreadWindows(dynamic_cast<const QtFront&>(InstalledFront()));
    driver.Settle();
    const QWidget& main = *WindowOf(*frmMain).Top();
    for (const Form* form : {static_cast<const Form*>(&*frmQSOnr), static_cast<const Form*>(&*frmB4)}) {
        const QWidget& window = *WindowOf(*form).Top();
        const QRect entry(main.focusWidget()->mapToGlobal(QPoint()), main.focusWidget()->size());
        EXPECT_FALSE(window.frameGeometry().intersects(entry)) << form->Name();
        EXPECT_EQ(ToPixels(form->Left()), window.x()) << form->Name();
        EXPECT_EQ(ToPixels(form->Top()), window.y()) << form->Name();
    }
}

}  // namespace
}  // namespace vatro
