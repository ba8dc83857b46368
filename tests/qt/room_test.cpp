// SPDX-License-Identifier: MIT
//
// The size and scrolling of windows.
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "column_head.h"
#include "correction/frmNote.h"
#include "entry/frmB4.h"
#include "entry/frmUTC.h"
#include "exchange/FormQuickInfo.h"
#include "fields.h"
#include "item_list.h"
#include "keyer/frmCW.h"
#include "picture_view.h"
#include "qt/window_program.h"
#include "tables/frmCtyDat.h"

namespace vatro {
namespace {

class Room : public WindowProgram {
protected:
    Room() { StartVatro(); }
    QWidget& Shown(Form& form) {
        Dispatch([&] { form.Show(); });
        driver.Settle();
        return *WindowOf(form).Top();
    }
    QMainWindow& Main() { return dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top()); }
    ScrollRoom& Inside() { return dynamic_cast<ScrollRoom&>(*Main().centralWidget()); }
    bool InSight(const QWidget& widget) {
        const QRect place(widget.mapTo(&Main(), QPoint()), widget.size());
        const QWidget& sight = *Inside().viewport();
        return QRect(sight.mapTo(&Main(), QPoint()), sight.size()).contains(place);
    }
};

TEST_F(Room, QuickInfoStandsInTheMiddleOfTheScreenAndIsNotSizedByTheUser) {
    const QWidget& window = Shown(*formQuickInfo);
    const QPoint off = QRect(window.pos(), window.size()).center() - window.screen()->availableGeometry().center();
    EXPECT_LE(qAbs(off.x()), 1);
    EXPECT_LE(qAbs(off.y()), 1);
    EXPECT_EQ(window.minimumSize(), window.size());
    EXPECT_EQ(window.maximumSize(), window.size());
    EXPECT_EQ(window.windowType(), Qt::Tool);
}

TEST_F(Room, QuickInfoKeepsTheShapeOfItsPicture) {
    Shown(*formQuickInfo);
    const auto& picture = WidgetOf<PictureView>(formQuickInfo->picture);
    // 1400 by 990, the size in which make-quickinfo draws it.
    EXPECT_NEAR(picture.width() * 990.0 / 1400, picture.height(), 1);
}

TEST_F(Room, FixedDialoguesHaveTheSizeOfTheirLayoutAlone) {
    for (Form* form : {static_cast<Form*>(&*frmNote), static_cast<Form*>(&*frmUTC)}) {
        QWidget& window = Shown(*form);
        EXPECT_EQ(window.size(), window.sizeHint()) << form->Name();
        EXPECT_EQ(window.maximumSize(), window.size()) << form->Name();
        EXPECT_EQ(window.minimumSize(), window.size()) << form->Name();
        Dispatch([&] { form->Hide(); });
    }
}

TEST_F(Room, DialoguesStayOnTheScreen) {
    Dispatch([] { frmMain->MoveTo(frmMain->Left() - 20000, frmMain->Top() + 20000); });
    driver.Settle();
    const QWidget& window = Shown(*frmUTC);
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect(window.pos(), window.size())));
}

TEST_F(Room, FieldWithTheFocusIsInSightOfASmallWindow) {
    // A screen of 1024 by 600 at scale 2, less a window frame.
    Dispatch([] { frmMain->Place(0, 0, 512 * kTwipsPerPixel, 270 * kTwipsPerPixel); });
    driver.Settle();
    EXPECT_EQ(Main().width(), 512);
    EXPECT_GT(Inside().horizontalScrollBar()->maximum(), 0);
    for (Control* control : frmMain->TabOrder()) {
        if (!control->TabStop() || control == &frmMain->log) continue;
        Dispatch([&] { control->SetFocus(); });
        driver.Settle();
        EXPECT_TRUE(InSight(WidgetOf<QWidget>(*control))) << control->FullName();
    }
}

TEST_F(Room, ComesBackToItsBeginningWithTheFocus) {
    Dispatch([] { frmMain->Place(0, 0, 512 * kTwipsPerPixel, 270 * kTwipsPerPixel); });
    for (Control* control : {static_cast<Control*>(&frmMain->operatorBox), static_cast<Control*>(&frmMain->fields[kCallField])}) {
        Dispatch([&] { control->SetFocus(); });
        driver.Settle();
        EXPECT_EQ(Inside().horizontalScrollBar()->value() > 0, control == &frmMain->operatorBox);
    }
    EXPECT_EQ(Inside().horizontalScrollBar()->value(), 0) << "the first columns of the log are in sight again";
}

TEST_F(Room, MainWindowOfItsOwnSizeNeedsNoScrolling) {
    EXPECT_EQ(Inside().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Inside().verticalScrollBar()->maximum(), 0);
}

TEST_F(Room, PageAndArrowKeysDoNotScrollTheWindow) {
    Dispatch([] { frmMain->Place(0, 0, 400 * kTwipsPerPixel, 200 * kTwipsPerPixel); });
    Dispatch([] { frmMain->fields[kUtcField].SetFocus(); });
    driver.Settle();
    const int across = Inside().horizontalScrollBar()->value();
    const int down = Inside().verticalScrollBar()->value();
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Up}) QTest::keyClick(&Main(), key);
    EXPECT_EQ(Inside().horizontalScrollBar()->value(), across);
    EXPECT_EQ(Inside().verticalScrollBar()->value(), down);
}

TEST_F(Room, ListScrollsToTheEndOfItsLongestRowButNotToBlanks) {
    auto& list = WidgetOf<ItemList>(frmB4->earlierContacts);
    Shown(*frmB4).resize(list.ColumnLeft(30), 200);
    Dispatch([] {
        frmB4->earlierContacts.AddItem(std::string(20, 'X') + std::string(40, ' '));
        frmB4->earlierContacts.AddItem("X");
    });
    driver.Settle();
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    Dispatch([] {
        frmB4->earlierContacts.AddItem(std::string(60, 'X'));
        frmB4->earlierContacts.AddItem("X");
    });
    driver.Settle();
    EXPECT_GE(list.horizontalScrollBar()->maximum() + list.viewport()->width(), list.ColumnLeft(61));
}

TEST_F(Room, ArrowsAreAsHighAsTheirField) {
    Shown(*frmCW);
    EXPECT_EQ(WidgetOf<SpinArrows>(frmCW->pitchArrows).height(), WidgetOf<QLineEdit>(frmCW->pitch).height());
    EXPECT_EQ(WidgetOf<SpinArrows>(frmCW->speedArrows).height(), WidgetOf<QLineEdit>(frmCW->speed).height());
}

TEST_F(Room, VolumeScaleEndsOverTheEndsOfItsBar) {
    Shown(*frmCW);
    const auto& head = WidgetOf<ColumnHead>(frmCW->volumeLabel);
    const auto pieces = head.Pieces();
    ASSERT_EQ(pieces.size(), 3);
    EXPECT_EQ(pieces[0].text, QStringLiteral("Min"));
    EXPECT_EQ(pieces[0].x, 0);
    EXPECT_EQ(pieces[2].text, QStringLiteral("Max"));
    EXPECT_NEAR(pieces[2].x + head.fontMetrics().horizontalAdvance(pieces[2].text), head.width(), 2);
    EXPECT_EQ(head.width(), WidgetOf<QWidget>(frmCW->volume).width());
}

TEST_F(Room, ButtonsKeepTheirCaptionsOffTheirEdges) {
    const QWidget& window = Shown(*frmCW);
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        EXPECT_GE(button->width() - text, 3 * button->fontMetrics().averageCharWidth()) << button->text().toStdString();
    }
}

}  // namespace
}  // namespace vatro
