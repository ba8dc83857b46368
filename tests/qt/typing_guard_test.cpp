// SPDX-License-Identifier: MIT
//
// The typing guards of the desktop, tested on real windows with real keys and a clock that the test controls.
#include "typing_guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "box_flash.h"
#include "dialogs.h"
#include "entry/frmNytQSOnr.h"
#include "entry/qso_fields.h"
#include "field_mark.h"
#include "frame/state.h"
#include "keyer/frmCWTX.h"
#include "qt/desktop_program.h"

namespace vatro {
namespace {

using namespace std::chrono_literals;
using namespace literals;

class SafeTyping : public DesktopProgram {
protected:
    SafeTyping() {
        desktop.Typing().now = [this] { return moment; };
        StartInMorse();
    }

    /// The auto-repeat of a held key.
    void Repeat(Form& form, Qt::Key key, const QString& text) const {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QApplication::sendEvent(WindowOf(form).Top()->windowHandle(), &event);
    }
    std::size_t Contacts() { return LinesOf("log\\FD80mCW.txt").size(); }

    /// The text of F5.
    void Send() {
        Key({.name = "F5"});
        ASSERT_EQ(ActiveForm(), frmCWTX.Peek());
        ASSERT_EQ(QApplication::activeWindow(), WindowOf(*frmCWTX).Top());
    }
    bool Playing() const { return frmCWTX.Loaded() && frmCWTX.Peek()->Visible(); }
    void PlayToTheEnd() {
        for (std::size_t half = 0; Playing(); half = 1 - half) {
            const SoundEvent event = sound.buffer->positions[half].event;
            Dispatch([&] { sound.events.at(event)(event); });
        }
        driver.Settle();
    }

    Moment moment{10s};
};

// --- The second Enter

TEST_F(SafeTyping, ASecondEnterBehindAContactOpensNoBox) {
    Type("dl9xyz 12");
    Key({.name = "Enter"});
    ASSERT_EQ(Contacts(), 1U);
    moment += 500ms;
    Key({.name = "Enter"});
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(SafeTyping, TheNextCallIsLoggedHoweverFast) {
    Type("dl9xyz 12");
    Key({.name = "Enter"});
    Key({.name = "Enter"});
    Type("oz1abc 7");
    Key({.name = "Enter"});
    EXPECT_EQ(LinesOf("log\\FD80mCW.txt"),
              (std::vector<std::string>{"13:00 DL9XYZ          599-0001 599-0012  3 DL         OZ1DEF     CW    05-09-26",
                                        "13:00 OZ1ABC          599-0002 599-0007 10 OZ         OZ1DEF     CW    05-09-26"}));
}

TEST_F(SafeTyping, AnEnterLaterThanThatIsMeant) {
    Type("dl9xyz 12");
    Key({.name = "Enter"});
    moment += 501ms;
    dialogs.Expect("Et kaldesignal skal være på mindst 3 tegn");
    Key({.name = "Enter"});
}

TEST_F(SafeTyping, AnEnterHeldDownLogsNothing) {
    Type("dl9xyz 12");
    Repeat(*frmMain, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(Contacts(), 0U);
    Repeat(*frmMain, Qt::Key_Escape, QStringLiteral("\x1b"));
    EXPECT_EQ(Field(kCallField), "DL9XYZ");
}

// --- Boxes

class SafeBox : public SafeTyping {
protected:
    SafeBox() {
        MessageBox question;
        question.text = "Fortsætter samme operatør?"_t;
        question.buttons = Buttons::YesNo;
        box.reset(MakeBox(question, DialogOwner()));
        box->setWindowModality(Qt::ApplicationModal);
        box->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.get()));
        moment += 1s;
    }
    void Tap(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(box->windowHandle(), key, modifiers);
        // Longer than the time for which Qt shows a button pressed.
        QTest::qWait(150);
    }
    bool Flashes() const {
        const auto* flash = box->findChild<BoxFlash*>();
        return flash != nullptr && flash->isVisible();
    }
    std::unique_ptr<QMessageBox> box;
};

TEST_F(SafeBox, ALetterOrFigurePressesNoButtonAndFlashes) {
    EXPECT_FALSE(Flashes());
    Tap(Qt::Key_N);
    Tap(Qt::Key_J);
    Tap(Qt::Key_4);
    Tap(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(Flashes());
}

TEST_F(SafeBox, TheFlashGoesByItself) {
    Tap(Qt::Key_X);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Flashes(); }, 2000));
    Tap(Qt::Key_X);
    EXPECT_TRUE(Flashes());
}

TEST_F(SafeBox, EnterAnswersWithTheDefaultButton) {
    Tap(Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(AnswerOf(*box), Answer::Yes);
}

TEST_F(SafeBox, EscAnswersNo) {
    Tap(Qt::Key_Escape);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(AnswerOf(*box), Answer::No);
}

TEST_F(SafeBox, SpacePressesTheButtonWithTheFocus) {
    Tap(Qt::Key_Tab);
    Tap(Qt::Key_Space);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(AnswerOf(*box), Answer::No);
}

TEST_F(SafeBox, AltAndALetterPressTheButton) {
    Tap(Qt::Key_N, Qt::AltModifier);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(AnswerOf(*box), Answer::No);
}

TEST_F(SafeBox, AnEnterHeldDownAnswersNothing) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(box->windowHandle(), &event);
    QTest::qWait(150);
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(Flashes());
}

TEST_F(SafeBox, AKeyBeforeItCanHaveBeenSeenAnswersNothing) {
    box->hide();
    box->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(box.get()));
    moment += 199ms;
    Tap(Qt::Key_Return);
    EXPECT_TRUE(box->isVisible());
    moment += 1ms;
    Tap(Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
}

TEST_F(SafeBox, TheFlashIsNotTheColourAlone) {
    const QImage before = box->grab().toImage();
    Tap(Qt::Key_X);
    ASSERT_TRUE(Flashes());
    const QImage lit = box->grab().toImage();
    // Compares in grey: the flash reaches half a line of text inward from the edge.
    const int inside = box->fontMetrics().height() / 4;
    const auto grey = [inside](const QImage& image) { return qGray(image.pixel(inside, image.height() / 2)); };
    EXPECT_GT(std::abs(grey(before) - grey(lit)), 100);
}

// --- Morse

TEST_F(SafeTyping, TheNextCallIsTypedWhileTheTextPlays) {
    Send();
    Type("dl9xyz 12");
    EXPECT_EQ(Field(kCallField), "DL9XYZ");
    EXPECT_EQ(Field(kNumberReceivedField), "12");
    EXPECT_TRUE(Playing());
    EXPECT_EQ(frmCWTX->text.Text(), "PARIS ");
    EXPECT_EQ(ActiveForm(), frmCWTX.Peek());
    EXPECT_EQ(QApplication::activeWindow(), WindowOf(*frmCWTX).Top());
}

TEST_F(SafeTyping, TheFieldThatGetsTheKeysIsMarkedWhileTheTextPlays) {
    const auto marked = [this](int index) {
        const auto* mark = WindowOf(*frmMain).Top()->findChild<FieldMark*>();
        return mark != nullptr && mark->isVisible() && mark->geometry().contains(WidgetOf<QWidget>(frmMain->fields[index]).geometry());
    };
    Send();
    EXPECT_TRUE(marked(kCallField));
    Type("dl9xyz ");
    EXPECT_TRUE(marked(kNumberReceivedField));
    Key({.name = "Esc"});
    EXPECT_TRUE(marked(kNumberReceivedField)) << "the keys still go there";
}

TEST_F(SafeTyping, EscStopsTheTextAndLeavesTheFields) {
    Send();
    Type("dl9xyz 12");
    Key({.name = "Esc"});
    EXPECT_FALSE(Playing());
    EXPECT_EQ(Field(kCallField), "DL9XYZ");
    // A second Esc goes to the fields, because the text has been stopped.
    Key({.name = "Esc"});
    EXPECT_EQ(Field(kCallField), "");
}

TEST_F(SafeTyping, EnterStopsTheTextAndLogsNothing) {
    Send();
    Type("dl9xyz 12");
    Key({.name = "Enter"});
    EXPECT_FALSE(Playing());
    EXPECT_EQ(Contacts(), 0U);
    Key({.name = "Enter"});
    EXPECT_EQ(Contacts(), 1U);
}

TEST_F(SafeTyping, AltSStopsAndAltTSendsAgain) {
    Send();
    sound.calls.clear();
    Key({.name = {}, .character = 't', .alt = true});
    EXPECT_EQ(sound.calls.back(), "play");
    Key({.name = {}, .character = 's', .alt = true});
    EXPECT_FALSE(Playing());
    EXPECT_FALSE(frmMain->qsl.Value());
}

TEST_F(SafeTyping, EditingKeysReachTheFieldWhileTheTextPlays) {
    Send();
    Type("dl9xyzz");
    Key({.name = "Backspace"});
    Key({.name = "Home"});
    Key({.name = "Delete"});
    EXPECT_EQ(Field(kCallField), "L9XYZ");
    Key({.name = "Tab"});
    EXPECT_EQ(frmMain->ActiveControl(), &frmMain->fields[kReportSentField]);
    Key({.name = {}, .character = 'c', .alt = true});
    EXPECT_EQ(frmMain->ActiveControl(), &frmMain->fields[kCallField]);
    EXPECT_EQ(ActiveForm(), frmCWTX.Peek());
}

TEST_F(SafeTyping, FunctionKeysSendWhileATextPlays) {
    Send();
    desk().cw.CWTekster[1] = "EE";
    Key({.name = "F6"});
    EXPECT_EQ(frmCWTX->text.Text(), "EE ");
    EXPECT_TRUE(Playing());
    EXPECT_EQ(ActiveForm(), frmCWTX.Peek());
}

TEST_F(SafeTyping, AFunctionKeyHeldDownSendsOnce) {
    Send();
    sound.calls.clear();
    Repeat(*frmCWTX, Qt::Key_F5, {});
    EXPECT_EQ(sound.calls, std::vector<std::string>{});
}

TEST_F(SafeTyping, KeysOnTheirWayToTheMainWindowAreSharedOutAlike) {
    Send();
    QWindow* main = WindowOf(*frmMain).Top()->windowHandle();
    QTest::keyClick(main, Qt::Key_D);
    EXPECT_EQ(Field(kCallField), "D");
    EXPECT_EQ(ActiveForm(), frmCWTX.Peek());
    QTest::keyClick(main, Qt::Key_Escape);
    EXPECT_FALSE(Playing());
    EXPECT_EQ(Field(kCallField), "D");
}

TEST_F(SafeTyping, EscRightBehindTheEndOfATextStillMeansTheText) {
    Send();
    Type("dl9xyz 12");
    PlayToTheEnd();
    moment += 400ms;
    Key({.name = "Esc"});
    EXPECT_EQ(Field(kCallField), "DL9XYZ");
    Key({.name = "Esc"});
    EXPECT_EQ(Field(kCallField), "");
}

TEST_F(SafeTyping, EnterRightBehindTheEndOfATextStillMeansTheText) {
    Send();
    Type("dl9xyz 12");
    PlayToTheEnd();
    Key({.name = "Enter"});
    EXPECT_EQ(Contacts(), 0U);
    Key({.name = "Enter"});
    EXPECT_EQ(Contacts(), 1U);
}

TEST_F(SafeTyping, EscLongerBehindTheEndWipesTheFields) {
    Send();
    Type("dl9xyz");
    PlayToTheEnd();
    moment += 401ms;
    Key({.name = "Esc"});
    EXPECT_EQ(Field(kCallField), "");
}

TEST_F(SafeTyping, AKeyBehindTheEndGivesEnterToTheFields) {
    Send();
    Type("dl9xyz 1");
    PlayToTheEnd();
    Type("2");
    Key({.name = "Enter"});
    EXPECT_EQ(Contacts(), 1U);
}

TEST_F(SafeTyping, EnterMeansTheFieldsIfTheMainWindowHadTheKeys) {
    Send();
    Type("dl9xyz 12");
    driver.Focus(frmMain->fields[kCallField]);
    driver.Settle();
    ASSERT_EQ(ActiveForm(), frmMain.Peek());
    PlayToTheEnd();
    Key({.name = "Enter"});
    EXPECT_EQ(Contacts(), 1U);
}

// --- Without the switch

class PlainTyping : public WindowProgram {};

TEST_F(PlainTyping, ASecondEnterIsAnEmptyCall) {
    StartVatro();
    Type("dl9xyz 7");
    Key({.name = "Enter"});
    dialogs.Expect("Et kaldesignal skal være på mindst 3 tegn");
    Key({.name = "Enter"});
}

}  // namespace
}  // namespace vatro
