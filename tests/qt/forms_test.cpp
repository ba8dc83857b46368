// SPDX-License-Identifier: MIT
//
// Every form of the program in its window.
#include <gtest/gtest-spi.h>
#include <QAbstractButton>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "column_head.h"
#include "entry/frmB4.h"
#include "entry/frmQSOnr.h"
#include "fields.h"
#include "item_list.h"
#include "layouts.h"
#include "memory_front.h"
#include "qt/window_program.h"
#include "stations/frmEDR.h"
#include "status_panel.h"

namespace vatro {

namespace {

/// Name and problem, one per line.
std::string Problems(const FormWindow& window) {
    std::string all;
    for (const QString& problem : window.Problems()) all += problem.toStdString() + "\n";
    return all;
}

/// A form whose layout lacks a field and has a field that belongs to no control.
class FrmWrong : public Form {
public:
    FrmWrong() : Form("frmWrong", FormKind::Dialog, "Wrong") {}
    TextBox Text1{*this, "Text1"};
};
FormSlot<FrmWrong> frmWrong{"frmWrong"};

}  // namespace

class EveryForm : public WindowProgram {
protected:
    EveryForm() {
        StartVatro();
        Dispatch([] {
            for (FormSlotBase* slot : FormSlots())
                if (!slot->Name().starts_with("frmRules") && slot->Name() != "frmWrong") slot->Load();
        });
        // This form has no caption until it is used.
        Dispatch([] { VisEDRstns(true); });
        driver.Settle();
    }
};

TEST_F(EveryForm, HasOneWidgetForEachControlAndNoOther) {
    EXPECT_GE(LoadedForms().size(), 6U);
    for (const Form* form : LoadedForms()) EXPECT_EQ(Problems(WindowOf(*form)), "") << form->Name();
}

TEST_F(EveryForm, NamesWhateverTakesTheFocus) {
    int named = 0;
    for (const Form* form : LoadedForms())
        for (const QWidget* widget : WindowOf(*form).Top()->findChildren<QWidget*>()) {
            if (widget->window() != WindowOf(*form).Top()) continue;
            if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_")) continue;
            EXPECT_NE(widget->accessibleName(), QString()) << form->Name() << "." << widget->objectName().toStdString();
            ++named;
        }
    EXPECT_GE(named, 9);
}

TEST_F(EveryForm, CutsNoCaptionOff) {
    for (const Form* form : LoadedForms()) {
        QWidget& top = *WindowOf(*form).Top();
        top.show();
        for (const QWidget* widget : top.findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool caption = (button != nullptr && !button->text().isEmpty()) || widget->metaObject() == &QLabel::staticMetaObject;
            if (!caption || !widget->isVisible() || widget->objectName().startsWith(u"qt_")) continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << form->Name() << "." << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << form->Name() << "." << widget->objectName().toStdString();
        }
    }
}

class MainWindow : public WindowProgram {
protected:
    MainWindow() { StartVatro(); }
    QWidget& Top() const { return *WindowOf(*frmMain).Top(); }
    ColumnHead& Head(const char* name) const { return *Top().findChild<ColumnHead*>(QLatin1String(name)); }
};

TEST_F(MainWindow, FitsASmallScreenBesideItsStoredPlace) {
    // 1024 by 600, less a window frame and the offset of 67 pixels that a first start uses.
    EXPECT_LE(Top().width() + 67, 1024);
    EXPECT_LE(Top().height() + 67 + 40, 600);
    // No scrolling on a screen of 1920 by 1080 at scale 2.
    const auto* room = Top().findChild<ScrollRoom*>();
    const QSize least = Top().size() - room->size() + room->widget()->minimumSizeHint();
    EXPECT_LE(least.width() + 67, 960);
    EXPECT_LE(least.height() + 67 + 40, 540);
}

TEST_F(MainWindow, HasTheSizeThatTheFrontInMemoryGivesIt) {
    EXPECT_EQ(frmMain->Width(), MemoryFront::kMainWidth);
    EXPECT_EQ(frmMain->Height(), MemoryFront::kMainHeight);
}

TEST_F(MainWindow, ShowsAllColumnsOfAContact) {
    auto& list = WidgetOf<ItemList>(frmMain->log);
    EXPECT_LE(list.ColumnLeft(80), list.viewport()->width());
}

TEST_F(MainWindow, PutsEachHeadOverItsColumn) {
    const ColumnHead& head = Head("Label1");
    const auto& list = WidgetOf<ItemList>(frmMain->log);
    const int columns[]{1, 7, 23, 32, 41, 44, 55, 62, 66, 72};
    const auto pieces = head.Pieces();
    ASSERT_EQ(pieces.size(), 10);
    EXPECT_EQ(pieces[1].text, QStringLiteral("Call"));
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        const int over = head.mapFromGlobal(list.viewport()->mapToGlobal(QPoint(list.ColumnLeft(columns[i]), 0))).x();
        // A heading as wide as its column may push the next one on by less than two characters.
        EXPECT_GE(pieces[i].x, over) << i;
        EXPECT_LE(pieces[i].x, over + 2 * (list.ColumnLeft(2) - list.ColumnLeft(1))) << i;
    }
    EXPECT_LE(pieces.back().x + head.fontMetrics().horizontalAdvance(pieces.back().text), head.width());
}

TEST_F(MainWindow, PutsEachCaptionOverItsField) {
    const ColumnHead& head = Head("Frame1Caption");
    const auto pieces = head.Pieces();
    ASSERT_EQ(pieces.size(), 4);
    const int fields[]{0, 1, 2, 4};
    for (qsizetype i = 0; i < 4; ++i) {
        const auto& field = WidgetOf<QLineEdit>(frmMain->fields[static_cast<std::size_t>(fields[i])]);
        EXPECT_NEAR(pieces[i].x, head.mapFromGlobal(field.mapToGlobal(QPoint())).x(), 4) << i;
    }
}

TEST_F(MainWindow, HasRoomForEveryCharacterOfAField) {
    const struct {
        std::size_t field;
        const char* text;
    } widest[]{{0, "23:59"}, {2, "599"}, {3, "9999"}, {4, "599"}, {5, "9999"}, {1, "OZ7ABC/QRP/MM44"}};
    for (const auto& [index, text] : widest) {
        const auto& field = WidgetOf<QLineEdit>(frmMain->fields[index]);
        EXPECT_LE(field.fontMetrics().horizontalAdvance(QLatin1String(text)) + 8, field.width()) << text;
    }
}

TEST_F(MainWindow, ShowsTheTextOfTheStatusBarInFullOrInItsTooltip) {
    const std::string longText(300, 'W');
    Dispatch([&] { frmMain->statusBar.SetPanel(1, longText); });
    driver.Settle();
    const auto* panel = Top().findChild<StatusPanel*>(QStringLiteral("sbStatusBar_1"));
    EXPECT_NE(panel->text().size(), 300);
    EXPECT_TRUE(panel->toolTip().contains(QString(300, u'W')));
    Dispatch([] { frmMain->statusBar.SetPanel(1, "short"); });
    driver.Settle();
    EXPECT_EQ(panel->text(), QStringLiteral("short"));
}

TEST_F(MainWindow, OutOfUseLeavesTheOtherWindowsAsTheyAre) {
    Dispatch([] { frmQSOnr->SetEnabled(false); });
    for (const bool enabled : {false, true}) {
        Dispatch([&] { frmMain->SetEnabled(enabled); });
        EXPECT_EQ(Top().isEnabled(), enabled);
        EXPECT_TRUE(WindowOf(*frmB4).Top()->isEnabled());
        EXPECT_TRUE(WidgetOf<QWidget>(frmB4->earlierContacts).isEnabled());
        EXPECT_FALSE(WindowOf(*frmQSOnr).Top()->isEnabled());
    }
}

TEST_F(MainWindow, HasNoMenuThatTakesItsBarsAway) {
    for (QWidget* bar : {static_cast<QWidget*>(Top().findChild<QMenuBar*>()), static_cast<QWidget*>(Top().findChild<QToolBar*>()),
                         static_cast<QWidget*>(Top().findChild<QStatusBar*>())}) {
        const QPoint end(bar->width() - 2, bar->height() / 2);
        QContextMenuEvent click(QContextMenuEvent::Mouse, end, bar->mapToGlobal(end));
        QApplication::sendEvent(bar, &click);
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << bar->metaObject()->className();
        if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }
}

TEST_F(MainWindow, KeepsTheSideWindowsAboveItself) {
    EXPECT_EQ(WindowOf(*frmB4).Top()->parentWidget(), &Top());
    EXPECT_EQ(WindowOf(*frmB4).Top()->windowType(), Qt::Tool);
}

TEST_F(WindowProgram, TellsControlsWithoutWidgetAndWidgetsWithoutControl) {
    AddLayout("frmWrong", [](QWidget* form) {
        auto* rows = new QVBoxLayout(form);
        auto* other = new QLineEdit;
        other->setObjectName(QStringLiteral("Text2"));
        rows->addWidget(other);
    });
    BeginProgram();
    ::testing::TestPartResultArray warnings;
    {
        // The window warns of both problems.
        const ::testing::ScopedFakeTestPartResultReporter intercept(::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS,
                                                                    &warnings);
        Dispatch([] { frmWrong.Load(); });
    }
    EXPECT_EQ(Problems(WindowOf(*frmWrong)), "Text1 has 0 widgets\nno control owns the widget \"Text2\"\n");
    EXPECT_EQ(warnings.size(), 2);
}

}  // namespace vatro
