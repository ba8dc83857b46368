// SPDX-License-Identifier: MIT
//
// Keys of the desktop that no rule uses, on real windows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

#include "correction/frmRetQSO.h"
#include "deliver.h"
#include "dialogs.h"
#include "entry/frmB4.h"
#include "entry/frmCall.h"
#include "entry/frmContestCall.h"
#include "entry/frmQSOnr.h"
#include "entry/qso_fields.h"
#include "exchange/equipment.h"
#include "exchange/frmStregP.h"
#include "field_mark.h"
#include "frame/state.h"
#include "help_window.h"
#include "keyer/frmCWTX.h"
#include "last_line.h"
#include "morse_speed.h"
#include "qt/desktop_program.h"
#include "stations/frmEDR.h"

namespace vatro {
namespace {

class DesktopKeys : public DesktopProgram {
protected:
    DesktopKeys() {
        AddLastLine(qtFront);
        speed.told = [this](int wpm) { told.push_back(wpm); };
        StartInMorse();
    }
    void Focus(Control& control) {
        Deliver([&control] { control.Parent().UserFocus(control); });
        driver.Settle();
    }
    /// Runs `use` while the modal form that `open` shows is open.
    void WithModal(const std::function<void()>& open, const std::function<void()>& use) {
        bool used = false;
        driver.playUntil = [&](const std::function<bool()>& over) {
            driver.Settle();
            use();
            used = true;
            EXPECT_TRUE(over());
        };
        Deliver(open);
        driver.Settle();
        EXPECT_TRUE(used);
    }
    bool Marked(const Control& control) const {
        const auto* mark = WindowOf(*frmMain).Top()->findChild<FieldMark*>();
        return mark != nullptr && mark->isVisible() && mark->geometry().contains(WidgetOf<QWidget>(control).geometry());
    }
    HelpWindow* Handbook() const { return handbook.Window(); }

    MorseSpeed speed{qtFront};
    std::vector<int> told;
};

// --- The field with the keys

TEST_F(DesktopKeys, TheFieldOrButtonWithTheKeysIsMarkedInADialogueToo) {
    WithModal([] { frmMain->mnuFunktionerCall.Choose(); },
              [&] {
                  for (int i = 0; i < 4; ++i) {
                      const QWidget* top = WindowOf(*frmCall).Top();
                      const auto* mark = top->findChild<FieldMark*>();
                      const QWidget* field = WidgetOf<QWidget>(*frmCall->ActiveControl()).isVisible()
                                                 ? &WidgetOf<QWidget>(*frmCall->ActiveControl())
                                                 : nullptr;
                      ASSERT_NE(mark, nullptr) << i;
                      ASSERT_NE(field, nullptr) << i;
                      EXPECT_TRUE(mark->isVisible()) << i;
                      EXPECT_TRUE(mark->geometry().contains(field->geometry())) << i;
                      Key({.name = "Tab"});
                  }
                  Key({.name = "Esc"});
              });
}

// --- The newest line

TEST_F(DesktopKeys, CtrlROpensTheNewestLineForCorrection) {
    Key({.name = {}, .character = 'r', .ctrl = true});
    EXPECT_FALSE(frmRetQSO.Loaded()) << "the log is empty";
    for (const char* call : {"dl1aa", "dl2bb"}) {
        Type(call);
        Key({.name = "Space"});
        Type("1");
        Key({.name = "Enter"});
    }
    ASSERT_EQ(frmMain->log.ListCount(), 2);
    bool open = false;
    driver.playUntil = [&](const std::function<bool()>&) {
        open = true;
        EXPECT_EQ(frmRetQSO->fields[kCallField].Text(), "DL2BB");
        frmRetQSO->Hide();
    };
    Key({.name = {}, .character = 'r', .ctrl = true});
    EXPECT_TRUE(open);
}

// --- Where keys go

TEST_F(DesktopKeys, WindowsThatOnlyShowSomethingRefuseTheKeyboard) {
    for (const Form* form : std::initializer_list<const Form*>{&*frmB4, &*frmQSOnr, &*frmContestCall})
        EXPECT_TRUE(WindowOf(*form).Top()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) << form->Name();
    EXPECT_FALSE(WindowOf(*frmMain).Top()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
}

TEST_F(DesktopKeys, AClickIntoTheListOfEarlierContactsLeavesTheKeysToTheCallField) {
    QTest::mouseClick(&WidgetOf<QWidget>(frmB4->earlierContacts), Qt::LeftButton);
    driver.Settle();
    EXPECT_EQ(ActiveForm(), frmMain.Peek());
    Type("d");
    EXPECT_EQ(Field(kCallField), "D");
}

TEST_F(DesktopKeys, LettersOverTheLogGoToTheCallField) {
    Focus(frmMain->log);
    ASSERT_EQ(frmMain->ActiveControl(), &frmMain->log);
    Type("dl9/x");
    EXPECT_EQ(Field(kCallField), "DL9/X");
    EXPECT_EQ(frmMain->ActiveControl(), &frmMain->fields[kCallField]);
}

TEST_F(DesktopKeys, WhatIsNoPartOfACallStaysInTheLog) {
    Focus(frmMain->log);
    Type(".");
    Key({.name = "Down"});
    Key({.name = "Space"});
    EXPECT_EQ(frmMain->ActiveControl(), &frmMain->log);
    EXPECT_EQ(Field(kCallField), "");
}

TEST_F(DesktopKeys, TheFieldWithTheKeysIsMarked) {
    EXPECT_TRUE(Marked(frmMain->fields[kCallField]));
    Focus(frmMain->log);
    EXPECT_TRUE(Marked(frmMain->log));
    WithModal([] { frmMain->mnuFunktionerCall.Choose(); },
              [&] {
                  EXPECT_FALSE(Marked(frmMain->log)) << "the keys go to the window above";
                  Key({.name = "Esc"});
              });
    EXPECT_TRUE(Marked(frmMain->log));
}

// --- Tab

TEST_F(DesktopKeys, TabSelectsTheTextOfTheFieldThatItEnters) {
    desk().gsTelefon = "12345678";
    WithModal([] { frmMain->mnuFunktionerCall.Choose(); },
              [&] {
                  Key({.name = "Tab"});
                  ASSERT_EQ(frmCall->ActiveControl(), &frmCall->telephone);
                  Type("9");
                  EXPECT_EQ(frmCall->telephone.Text(), "9");
                  Key({.name = "Esc"});
              });
}

// --- Esc

TEST_F(DesktopKeys, EscClosesTheListsOfStations) {
    Deliver([] { frmMain->mnuFunktionerKørteEDRstns.Choose(); });
    driver.Settle();
    ASSERT_TRUE(frmEDR.Loaded());
    Key({.name = "Esc"});
    EXPECT_FALSE(frmEDR.Loaded());
    EXPECT_EQ(ActiveForm(), frmMain.Peek());
    Deliver([] { frmMain->mnuFunktionerStregP.Choose(); });
    driver.Settle();
    ASSERT_TRUE(frmStregP.Loaded());
    Key({.name = "Esc"});
    EXPECT_FALSE(frmStregP.Loaded());
}

TEST_F(DesktopKeys, EscClosesTheEquipmentWhileNothingHasBeenChanged) {
    WithModal([] { frmMain->menuIndstillingerUdstyr.Choose(); }, [&] { Key({.name = "Esc"}); });
    WithModal([] { frmMain->menuIndstillingerUdstyr.Choose(); },
              [&] {
                  Type("x");
                  Key({.name = "Esc"});
                  ASSERT_TRUE(formRigAnt.Loaded());
                  EXPECT_EQ(formRigAnt->rigs[0].Text(), "x");
                  Dispatch([] { formRigAnt->cancelButton.Press(); });
              });
}

// --- F3 and F4

TEST_F(DesktopKeys, EachListOfStationsLeadsToTheOther) {
    Key({.name = "F3"});
    ASSERT_EQ(frmEDR->Caption(), "Kørte EDR stationer"_t);
    Key({.name = "F4"});
    EXPECT_EQ(frmEDR->Caption(), "Ikke kørte EDR stationer"_t);
    Key({.name = "F3"});
    EXPECT_EQ(frmEDR->Caption(), "Kørte EDR stationer"_t);
    Key({.name = "Esc"});
}

// --- F1

TEST_F(DesktopKeys, F1OpensTheHandbookAtThePageOfTheWindow) {
    Key({.name = "F1"});
    ASSERT_NE(Handbook(), nullptr);
    EXPECT_EQ(Handbook()->Page(), QStringLiteral("operatoer.html"));
    Handbook()->close();
    driver.Settle();
}

TEST_F(DesktopKeys, F1OnABoxOpensThePageOfTheMessagesAboveIt) {
    MessageBox box;
    box.text = "text";
    const std::unique_ptr<QMessageBox> made(MakeBox(box, WindowOf(*frmMain).Top()));
    made->setWindowModality(Qt::ApplicationModal);
    made->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(made.get()));
    QTest::keyClick(made->windowHandle(), Qt::Key_F1);
    auto* above = made->findChild<HelpWindow*>();
    ASSERT_NE(above, nullptr);
    EXPECT_TRUE(above->isVisible());
    EXPECT_EQ(above->Page(), QStringLiteral("fejl.html"));
}

// --- The speed of the Morse

TEST_F(DesktopKeys, TheSpeedChangesByTwoAndIsStored) {
    QTest::keyClick(WindowOf(*frmMain).Top(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(desk().cw.giCWWPM, 26);
    EXPECT_EQ(settings.Read("CW", "WPM"), "26");
    QTest::keyClick(WindowOf(*frmMain).Top(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(desk().cw.giCWWPM, 24);
    EXPECT_THAT(told, testing::ElementsAre(26, 24));
}

TEST_F(DesktopKeys, TheSpeedStaysBetween6And60) {
    desk().cw.giCWWPM = 59;
    for (int i = 0; i < 3; ++i) QTest::keyClick(WindowOf(*frmMain).Top(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(desk().cw.giCWWPM, 60);
    desk().cw.giCWWPM = 7;
    for (int i = 0; i < 3; ++i) QTest::keyClick(WindowOf(*frmMain).Top(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(desk().cw.giCWWPM, 6);
}

TEST_F(DesktopKeys, ATextThatIsBeingSentKeepsItsSpeed) {
    Key({.name = "F5"});
    ASSERT_EQ(ActiveForm(), frmCWTX.Peek());
    const auto* buffer = sound.buffer;
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(WindowOf(*frmCWTX).Top()->windowHandle(), Qt::Key_PageUp, Qt::ControlModifier);
        driver.Settle();
    }
    EXPECT_TRUE(frmCWTX->Visible());
    EXPECT_EQ(desk().cw.giCWWPM, 24);
    EXPECT_EQ(sound.buffer, buffer);
    EXPECT_THAT(told, testing::ElementsAre(26, 28));
    Key({.name = "Esc"});
    EXPECT_TRUE(QTest::qWaitFor([] { return desk().cw.giCWWPM == 28; }));
}

}  // namespace
}  // namespace vatro
