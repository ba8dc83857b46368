// SPDX-License-Identifier: MIT
//
// The ways in which the user brings text in from outside. Text that a field's keys refuse must be refused by all of them.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QWindow>

#include "desktop.h"
#include "entry/frmNytQSOnr.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

class DesktopPaste : public WindowProgram {
protected:
    DesktopPaste() {
        StartVatro();
        Dispatch([] { Number().SetFocus(); });
        driver.Settle();
        QApplication::clipboard()->setText(QStringLiteral("1E9"));
    }
    static TextBox& Number() { return frmMain->fields[kNumberReceivedField]; }
    QLineEdit& Field() const { return WidgetOf<QLineEdit>(Number()); }
    QWindow* Window() const { return WindowOf(*frmMain).Top()->windowHandle(); }

    QtHelp handbook;
    Desktop desktop{dynamic_cast<QtFront&>(driver.ProgramFront()), handbook};
};

TEST_F(DesktopPaste, ByCtrlVTakesWhatTheKeysTake) {
    QTest::keyClick(Window(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Number().Text(), "19");
    EXPECT_EQ(Field().text(), QStringLiteral("19"));
}

TEST_F(DesktopPaste, ByShiftInsertTakesWhatTheKeysTake) {
    QTest::keyClick(Window(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Number().Text(), "19");
}

TEST_F(DesktopPaste, ByTheContextMenuTakesWhatTheKeysTake) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, Field().mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&Field(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QAction* paste = nullptr;
    for (QAction* action : menu->actions())
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) paste = action;
    ASSERT_NE(paste, nullptr);
    EXPECT_TRUE(paste->isEnabled());
    paste->trigger();
    menu->close();
    driver.Settle();
    EXPECT_EQ(Number().Text(), "19");
}

TEST_F(DesktopPaste, ByDropTakesWhatTheKeysTake) {
    Dispatch([] { Number().SetText("5"); });
    QMimeData data;
    data.setText(QStringLiteral("1E9 2"));
    const QPoint at(Field().width() - 3, 3);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Field(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Field(), &event);
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(Number().Text(), "5192");
}

TEST_F(DesktopPaste, IntoANewNumberTakesFiguresByKeyToo) {
    driver.playUntil = [this](const std::function<bool()>&) {
        driver.Settle();
        QWindow* window = WindowOf(*frmNytQSOnr).Top()->windowHandle();
        QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->setText(QStringLiteral("9E4"));
        QTest::keyClick(window, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(frmNytQSOnr->number.Text(), "94");
        QTest::keyClick(window, Qt::Key_E);
        EXPECT_EQ(frmNytQSOnr->number.Text(), "94");
        QTest::keyClick(window, Qt::Key_2);
        EXPECT_EQ(frmNytQSOnr->number.Text(), "942");
        QTest::keyClick(window, Qt::Key_Return);
    };
    Dispatch([] { ChangeNextNumber(); });
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0942");
}

class RulesPaste : public WindowProgram {};

TEST_F(RulesPaste, PassesTheFilters) {
    StartVatro();
    driver.Focus(frmMain->fields[kNumberReceivedField]);
    QApplication::clipboard()->setText(QStringLiteral("1E9"));
    QTest::keyClick(WindowOf(*frmMain).Top()->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(frmMain->fields[kNumberReceivedField].Text(), "1E9");
}

}  // namespace
}  // namespace vatro
