// SPDX-License-Identifier: MIT
#include "docking.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QTest>

#include "bar_widgets.h"
#include "column_head.h"
#include "desktop.h"
#include "dock_room.h"
#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/qso_fields.h"
#include "entry/validation.h"
#include "fields.h"
#include "item_list.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

class DockedWindows : public WindowProgram {
protected:
    DockedWindows() {
        settings.texts["SETTINGS/BAND"] = "80m";
        settings.texts["SETTINGS/MODE"] = "SSB";
        settings.texts["SETTINGS/QSOMODE"] = "SSB";
        settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
        for (const auto& [key, value] : kPlaces) settings.texts["SETTINGS/" + key] = value;
        files.files["LOG\\FD80MSSB.TXT"] = {"13:00 DL9XYZ          59 -0001 59 -0012  3 DL         OZ1DEF     SSB   05-09-26"};
    }
    /// Places in which all windows would be on the screen and none over the fields.
    const std::map<std::string, std::string> kPlaces{{"B4LEFT", "6000"},  {"B4TOP", "150"},     {"B4WIDTH", "4500"},  {"B4HEIGHT", "3000"},
                                                     {"QSOLEFT", "300"},  {"QSOTOP", "9000"},   {"QSOHEIGHT", "900"}, {"CALLLEFT", "6000"},
                                                     {"CALLTOP", "9000"}, {"CALLHEIGHT", "750"}};
    void Begin() {
        docking.emplace(front, settings);
        StartVatro();
    }
    QMainWindow& Main() const { return dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top()); }
    QWidget& Top(const Form& form) const { return *WindowOf(form).Top(); }
    bool Docked(const Form& form) const { return Top(form).window() == &Main() && Top(form).isVisible(); }
    std::vector<const Form*> Sides() const { return {&*frmB4, &*frmQSOnr, &*frmContestCall}; }
    QRect In(const QWidget& widget) const { return {widget.mapTo(&Main(), QPoint()), widget.size()}; }
    QRect Of(const Control& control) const { return In(WidgetOf<QWidget>(control)); }
    QAction& Command() const {
        for (QAction* action : Main().findChildren<QAction*>())
            if (action->text() == QStringLiteral("Saml &vinduerne")) return *action;
        throw std::logic_error("no such command");
    }
    void Choose(QAction& action) {
        action.trigger();
        driver.Settle();
    }
    void Type(std::string_view text) {
        for (const char c : text) driver.Press({.name = {}, .character = c});
        driver.Settle();
    }
    std::map<std::string, std::string> StoredPlaces() const {
        std::map<std::string, std::string> places;
        for (const auto& [key, value] : kPlaces) places[key] = settings.texts.at("SETTINGS/" + key);
        return places;
    }

    QtFront& front = dynamic_cast<QtFront&>(driver.ProgramFront());
    QtHelp handbook;
    Desktop desktop{front, handbook};
    std::optional<Docking> docking;
};

TEST_F(DockedWindows, StandAroundTheLogAtAFirstStart) {
    Begin();
    for (const Form* form : Sides()) EXPECT_TRUE(Docked(*form)) << form->Name();
    const QRect log = Of(frmMain->log);
    const QRect fields = Of(frmMain->fields[kCallField]);
    EXPECT_GT(In(Top(*frmB4)).left(), log.right());
    EXPECT_GE(In(Top(*frmB4)).bottom(), log.bottom() - 1);
    for (const Form* form : std::initializer_list<const Form*>{&*frmQSOnr, &*frmContestCall}) {
        EXPECT_GT(In(Top(*form)).top(), log.bottom()) << form->Name();
        EXPECT_LT(In(Top(*form)).bottom(), fields.top()) << form->Name();
    }
    EXPECT_LT(In(Top(*frmQSOnr)).right(), In(Top(*frmContestCall)).left());
    EXPECT_TRUE(Command().isChecked());
}

TEST_F(DockedWindows, ShowTheirColumnsUnderTheirHeads) {
    Begin();
    // Both lists have the same name in their forms.
    auto& earlier = WidgetOf<ItemList>(frmB4->earlierContacts);
    for (ColumnHead* head : Main().findChildren<ColumnHead*>()) {
        if (head->objectName() != QStringLiteral("FormCaption")) continue;
        EXPECT_EQ(head->mapTo(&Main(), QPoint(head->Pieces().at(1).x, 0)).x(),
                  earlier.viewport()->mapTo(&Main(), QPoint(earlier.ColumnLeft(16), 0)).x());
    }
}

TEST_F(DockedWindows, GrowWithTheWindow) {
    Begin();
    Main().resize(Main().minimumSizeHint().expandedTo({700, 450}));
    driver.Settle();
    const QSize number = Top(*frmQSOnr).size();
    const QSize before = Top(*frmB4).size();
    Main().resize(1500, 1100);
    driver.Settle();
    EXPECT_GT(Top(*frmQSOnr).height(), number.height());
    EXPECT_GT(Top(*frmQSOnr).width(), number.width());
    EXPECT_GT(Top(*frmB4).height(), before.height());
    EXPECT_GT(Top(*frmB4).width(), before.width());
}

TEST_F(DockedWindows, ShowAllColumnsOfBothListsOnANetbook) {
    Begin();
    Main().resize(1024, 560);
    driver.Settle();
    const auto& log = WidgetOf<ItemList>(frmMain->log);
    const auto& earlier = WidgetOf<ItemList>(frmB4->earlierContacts);
    EXPECT_LE(log.ColumnLeft(80), log.viewport()->width());
    EXPECT_LE(earlier.ColumnLeft(31), earlier.viewport()->width());
    EXPECT_GE(earlier.ColumnLeft(16), earlier.ColumnLeft(9)) << "room for the calls";
}

TEST_F(DockedWindows, LetTheWindowGrowWithItsTextUntilBothListsFitOrTheScreenEnds) {
    Begin();
    const QRect screen = Main().screen()->availableGeometry();
    // Until then moves are those of the window manager.
    QTest::qWait(400);
    Main().move(60, 20);
    Main().resize(600, 450);
    driver.Settle();
    const QRect before = Main().geometry();
    const int left = frmMain->Left();
    const int top = frmMain->Top();
    QTest::keyClick(&Main(), Qt::Key_Plus, Qt::ControlModifier);
    driver.Settle();
    // The log alone is wider than this screen.
    ASSERT_GT(WidgetOf<ItemList>(frmMain->log).fontMetrics().horizontalAdvance(QString(80, u'0')), screen.width());
    EXPECT_EQ(Main().frameGeometry().left(), screen.left());
    EXPECT_EQ(Main().frameGeometry().right(), screen.right());
    EXPECT_LE(Main().frameGeometry().bottom(), screen.bottom());
    QTest::qWait(1200);
    EXPECT_EQ(frmMain->Left(), left) << "its place is still the user's";
    EXPECT_EQ(frmMain->Top(), top);
    QTest::keyClick(&Main(), Qt::Key_0, Qt::ControlModifier);
    driver.Settle();
    EXPECT_EQ(Main().geometry(), before);
    EXPECT_EQ(frmMain->Left(), left);
    EXPECT_EQ(frmMain->Top(), top);
}

/// The first letters of the number and of the call begin and end in the same rows of pixels of the main window.
TEST_F(DockedWindows, NumberAndOwnCallReadAsOneLine) {
    Begin();
    // A slash reaches below the line, and a long call is limited by the width of its window.
    for (const char* call : {"OZ7FD/P", "OZ7FD", "SM7/OZ1ABC/P"}) {
        Dispatch([&] { frmContestCall->call.SetCaption(call); });
        for (const QSize size : {QSize(700, 560), QSize(1024, 560), QSize(1366, 700), QSize(1900, 1000)}) {
            Main().resize(size);
            driver.Settle();
            const auto ink = [this](const Form& form) {
                QWidget& top = Top(form);
                const QImage picture = PictureOf(top);
                const QRgb ground = Ground(picture, top.rect());
                // The first letters, of which none is a slash.
                const auto inked = [&](int x, int y) { return ContrastOf(picture.pixel(x, y), ground) > 3; };
                int first = picture.width();
                for (int y = 0; y < picture.height(); ++y)
                    for (int x = 0; x < first; ++x)
                        if (inked(x, y)) first = x;
                int above = picture.height();
                int below = 0;
                for (int x = first; x < qMin(picture.width(), first + picture.height() * 3 / 4); ++x)
                    for (int y = 0; y < picture.height(); ++y)
                        if (inked(x, y)) {
                            above = qMin(above, y);
                            below = qMax(below, y);
                        }
                return std::pair(top.mapTo(&Main(), QPoint(0, above)).y(), top.mapTo(&Main(), QPoint(0, below)).y());
            };
            const auto number = ink(*frmQSOnr);
            const auto own = ink(*frmContestCall);
            EXPECT_NEAR(number.first, own.first, 2) << call << ' ' << size.width();
            EXPECT_NEAR(number.second, own.second, 2) << call << ' ' << size.width();
        }
    }
}

TEST_F(DockedWindows, LongMessagesDoNotMoveTheFields) {
    Begin();
    for (const int width : {500, 700, 1024, 1500}) {
        Main().resize(width, 560);
        QTest::qWait(100);
        const QRect call = Of(frmMain->fields[kCallField]);
        Dispatch([] { frmMain->statusBar.SetPanel(1, kDupeWarning, PanelMark::Duplicate); });
        driver.Settle();
        EXPECT_EQ(Of(frmMain->fields[kCallField]), call) << width;
        Dispatch([] { frmMain->statusBar.SetPanel(1, "Vatro 80m SSB"); });
        driver.Settle();
        EXPECT_EQ(Of(frmMain->fields[kCallField]), call) << width;
    }
}

TEST_F(DockedWindows, AreNotToldOfPlacesAndSizes) {
    Begin();
    const auto places = [this] {
        std::vector<int> all;
        for (const Form* form : Sides()) all.insert(all.end(), {form->Left(), form->Top(), form->Width(), form->Height()});
        return all;
    };
    const std::vector<int> at = places();
    Main().resize(1200, 900);
    driver.Settle();
    Main().showMaximized();
    driver.Settle();
    Main().showNormal();
    driver.Settle();
    EXPECT_EQ(places(), at);
    EndProgram();
    EXPECT_EQ(StoredPlaces(), kPlaces);
}

TEST_F(DockedWindows, FloatAtTheirStoredPlacesWhenTheCommandIsSwitchedOff) {
    Begin();
    Choose(Command());
    EXPECT_FALSE(Command().isChecked());
    EXPECT_EQ(settings.Read("Vindue", "Saml"), "False");
    for (const Form* form : Sides()) {
        EXPECT_TRUE(Top(*form).isWindow()) << form->Name();
        EXPECT_TRUE(Top(*form).isVisible()) << form->Name();
        EXPECT_EQ(Top(*form).x(), ToPixels(form->Left())) << form->Name();
        EXPECT_EQ(Top(*form).height(), ToPixels(form->Height())) << form->Name();
    }
    Choose(Command());
    for (const Form* form : Sides()) EXPECT_TRUE(Docked(*form)) << form->Name();
    EndProgram();
    EXPECT_EQ(StoredPlaces(), kPlaces);
}

TEST_F(DockedWindows, StayApartIfTheUserWantedItSo) {
    settings.Write("Vindue", "Saml", "False");
    Begin();
    for (const Form* form : Sides()) EXPECT_TRUE(Top(*form).isWindow()) << form->Name();
    EXPECT_FALSE(Command().isChecked());
}

TEST_F(DockedWindows, AreShownAndHiddenByTheirMenu) {
    Begin();
    const int log = WidgetOf<QWidget>(frmMain->log).width();
    QAction& check = *ActionOf(frmMain->mnuVisB4, Main());
    Choose(check);
    EXPECT_FALSE(Docked(*frmB4));
    EXPECT_GT(WidgetOf<QWidget>(frmMain->log).width(), log) << "the log takes the room";
    Choose(check);
    EXPECT_TRUE(Docked(*frmB4));
    EXPECT_EQ(WidgetOf<QWidget>(frmMain->log).width(), log);
    Type("dl9");
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "DL9");
}

TEST_F(DockedWindows, LeaveTheKeysToTheCallField) {
    Begin();
    for (const Form* form : Sides()) {
        QTest::mouseClick(&Top(*form), Qt::LeftButton);
        driver.Settle();
    }
    QTest::mouseClick(WidgetOf<ItemList>(frmB4->earlierContacts).viewport(), Qt::LeftButton);
    driver.Settle();
    EXPECT_EQ(ActiveForm(), frmMain.Peek());
    Type("dl9xyz");
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "DL9XYZ");
    EXPECT_EQ(frmB4->earlierContacts.ListCount(), 1);
}

TEST_F(DockedWindows, LeaveNoRowsEmptyInALongLog) {
    files.files["LOG\\FD80MSSB.TXT"] =
        std::vector<std::string>(200, "13:00 DL9XYZ          59 -0001 59 -0012  3 DL         OZ1DEF     SSB   05-09-26");
    settings.texts["SETTINGS/TEKSTSTR"] = "3";
    Begin();
    auto& log = WidgetOf<ItemList>(frmMain->log);
    const auto filled = [&log] {
        const QRect newest = log.visualRect(log.model()->index(log.model()->rowCount() - 1, 0));
        const int left = log.viewport()->height() - newest.bottom() - 1;
        // Less than a pixel for each row.
        return left >= 0 && left < log.viewport()->height() / newest.height();
    };
    EXPECT_TRUE(QTest::qWaitFor(filled));
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Minus, Qt::Key_0, Qt::Key_Minus, Qt::Key_Plus, Qt::Key_Plus}) {
        QTest::keyClick(&Main(), key, Qt::ControlModifier);
        driver.Settle();
        EXPECT_TRUE(QTest::qWaitFor(filled)) << key;
    }
}

TEST_F(DockedWindows, GoAwayWithTheProgramAndComeAgain) {
    Begin();
    EndProgram();
    driver.Settle();
    StartVatro();
    for (const Form* form : Sides()) EXPECT_TRUE(Docked(*form)) << form->Name();
}

TEST_F(WindowProgram, HaveNoRoomInScenarios) {
    StartVatro();
    for (const Form* form : std::initializer_list<const Form*>{&*frmB4, &*frmQSOnr, &*frmContestCall})
        EXPECT_TRUE(WindowOf(*form).Top()->isWindow());
    for (const DockRoom* room : WindowOf(*frmMain).Top()->findChildren<DockRoom*>()) EXPECT_FALSE(room->isVisible());
}

}  // namespace
}  // namespace vatro
