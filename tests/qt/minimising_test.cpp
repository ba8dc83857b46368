// SPDX-License-Identifier: MIT
//
// Side windows that the window manager minimises together with the main window. tests/desktop tests real window managers.
#include <QWidget>
#include <QWindow>

#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "qt/window_program.h"

namespace vatro {

class Minimising : public WindowProgram {
protected:
    Minimising() { StartVatro(); }
    QWidget& Window(const Form& form) const { return *WindowOf(form).Top(); }
    /// Minimises like a window manager: the main window first, then its transient windows.
    void Minimise() {
        Window(*frmMain).showMinimized();
        for (const Form* form : {static_cast<Form*>(&*frmB4), static_cast<Form*>(&*frmQSOnr), static_cast<Form*>(&*frmContestCall)})
            Window(*form).setWindowState(Qt::WindowMinimized);
        driver.Settle();
    }
    void Restore() {
        Window(*frmMain).showNormal();
        driver.Settle();
    }
};

TEST_F(Minimising, LeavesTheContestCallOnTheScreen) {
    const QPoint at = Window(*frmContestCall).pos();
    Minimise();
    EXPECT_FALSE(Window(*frmB4).isVisible());
    EXPECT_FALSE(Window(*frmQSOnr).isVisible());
    const QWidget& call = Window(*frmContestCall);
    EXPECT_TRUE(call.isVisible());
    EXPECT_FALSE(call.isMinimized());
    EXPECT_EQ(call.pos(), at);
    // With a minimised window as its parent it would be minimised again.
    EXPECT_EQ(call.windowHandle()->transientParent(), nullptr);
}

TEST_F(Minimising, IsUndoneForAllWindows) {
    for (int round = 0; round < 2; ++round) {
        Minimise();
        Restore();
        for (const Form* form : {static_cast<Form*>(&*frmB4), static_cast<Form*>(&*frmQSOnr), static_cast<Form*>(&*frmContestCall)}) {
            EXPECT_TRUE(Window(*form).isVisible()) << form->Name();
            EXPECT_FALSE(Window(*form).isMinimized()) << form->Name();
            EXPECT_EQ(Window(*form).windowHandle()->transientParent(), Window(*frmMain).windowHandle()) << form->Name();
        }
        EXPECT_FALSE(Window(*frmMain).isMinimized());
        EXPECT_EQ(ActiveForm(), &*frmMain);
    }
}

TEST_F(Minimising, IsNoneOfASideWindowThatOnlyGoesAlong) {
    Minimise();
    // A form that is minimised would not be stored at the end of the program.
    for (const Form* form : {static_cast<Form*>(&*frmB4), static_cast<Form*>(&*frmQSOnr), static_cast<Form*>(&*frmContestCall)})
        EXPECT_EQ(form->State(), WindowState::Normal) << form->Name();
    EXPECT_EQ(frmMain->State(), WindowState::Minimised);
}

TEST_F(Minimising, OfASideWindowAloneIsItsOwn) {
    Window(*frmB4).showMinimized();
    driver.Settle();
    EXPECT_EQ(frmB4->State(), WindowState::Minimised);
    EXPECT_TRUE(Window(*frmB4).isMinimized());
}

}  // namespace vatro
