// SPDX-License-Identifier: MIT
//
// The windows of large letters, on real windows: the letters follow the height, and the width follows the letters.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QWidget>

#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "frame/state.h"
#include "qt/window_program.h"
#include "qt_text.h"

namespace vatro {
namespace {

class SideWindows : public WindowProgram {
protected:
    QWidget& Top(const Form& form) const { return *WindowOf(form).Top(); }
    /// Width of a text in letters as high as the window, with a fortieth to spare.
    static double WidthFor(const Label& label, int height) {
        QFont font(ToQt(label.LabelFont().name));
        font.setBold(true);
        font.setPixelSize(height);
        return QFontMetricsF(font).horizontalAdvance(ToQt(label.Caption())) * 41 / 40;
    }
    void ExpectFitted(const Form& form, const Label& label) const {
        const QWidget& top = Top(form);
        const double wanted = WidthFor(label, top.height());
        // Hinting makes widths of letters differ a little from size to size.
        EXPECT_NEAR(top.width(), wanted, wanted / 50) << label.Caption();
    }
};

TEST_F(SideWindows, ATallerWindowHasLargerLettersAndIsWider) {
    StartVatro();
    for (const int height : {1500, 3000, 6000}) {
        driver.Place(*frmQSOnr, 0, 0, 3000, height);
        driver.Settle();
        EXPECT_EQ(Top(*frmQSOnr).height(), height / kTwipsPerPixel);
        ExpectFitted(*frmQSOnr, frmQSOnr->exchange);
    }
}

TEST_F(SideWindows, AWidthSetByHandIsNotKept) {
    StartVatro();
    const int width = Top(*frmQSOnr).width();
    driver.Place(*frmQSOnr, 0, 0, frmQSOnr->Width() * 2, frmQSOnr->Height());
    driver.Settle();
    EXPECT_EQ(Top(*frmQSOnr).width(), width);
}

TEST_F(SideWindows, FromNumber999To1000TheWindowWidens) {
    files.files["LOG\\FD80MSSB.TXT"] = {"13:00 DL9XYZ          59 -0998 59 -0012  3 DL         OZ1DEF     SSB   05-09-26"};
    StartVatro();
    const int width = Top(*frmQSOnr).width();
    ASSERT_EQ(frmQSOnr->exchange.Caption(), "SSB 59 999");
    Type("dl2abc 5");
    Key({.name = "Enter"});
    ASSERT_EQ(frmQSOnr->exchange.Caption(), "SSB 59 1000");
    EXPECT_GT(Top(*frmQSOnr).width(), width);
    ExpectFitted(*frmQSOnr, frmQSOnr->exchange);
}

TEST_F(SideWindows, AWarningWidensTheWindowUntilTheCallIsChanged) {
    files.files["LOG\\FD80MSSB.TXT"] = {"13:00 DL9XYZ          59 -0001 59 -0012  3 DL         OZ1DEF     SSB   05-09-26"};
    StartVatro();
    Type("dl9xyz");
    const int width = Top(*frmQSOnr).width();
    Type(" ");
    ASSERT_EQ(frmQSOnr->exchange.Caption(), "*** DUPE ***");
    EXPECT_GT(Top(*frmQSOnr).width(), width);
    ExpectFitted(*frmQSOnr, frmQSOnr->exchange);
    Key({.name = "Esc"});
    EXPECT_EQ(Top(*frmQSOnr).width(), width);
}

TEST_F(SideWindows, WithoutAContestCallItsWindowIsANarrowStrip) {
    StartVatro();
    const QWidget& top = Top(*frmContestCall);
    EXPECT_LT(top.width(), top.height() / 4);
    Dispatch([] {
        desk().gsMyCall = "OZ7FD/P";
        frmContestCall->visContestCall();
    });
    driver.Settle();
    EXPECT_GT(top.width(), top.height());
    ExpectFitted(*frmContestCall, frmContestCall->call);
}

TEST_F(SideWindows, AClosedWindowIsMadeAgainByAWarningAndStaysOutOfSight) {
    StartVatro();
    driver.Close(*frmQSOnr);
    driver.Settle();
    ASSERT_FALSE(frmQSOnr.Loaded());
    EXPECT_TRUE(frmMain->mnuVisQSOnr.Ticked());
    Dispatch([] { frmQSOnr->visDupe(); });
    driver.Settle();
    EXPECT_FALSE(Top(*frmQSOnr).isVisible());
}

}  // namespace
}  // namespace vatro
