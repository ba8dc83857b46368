// SPDX-License-Identifier: MIT
#include "first_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include "ask_at_first_start.h"
#include "deliver.h"
#include "disk/temporary_world.h"
#include "extras/log_lines.h"
#include "program.h"
#include "qt/window_program.h"
#include "qt_text.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

class FirstPageTest : public TemporaryWorld {
protected:
    FirstPageTest() { fs::create_directory(root_ / "tables"); }
    FirstPage::Surroundings Surroundings() {
        FirstPage::Surroundings surroundings;
        surroundings.home = root_;
        surroundings.tables = root_ / "tables";
        surroundings.now = [] { return DateTime{2026, 9, 5, 21, 36, 0, 0}; };
        surroundings.chooseDirectory = [this] { return chosen_; };
        return surroundings;
    }
    FirstAnswers Proposal() {
        FirstAnswers answers;
        answers.directory = (root_ / "Vatro 2026").string();
        answers.offset = -2;
        return answers;
    }
    FirstPage& Page() {
        if (page_ == nullptr) {
            page_ = std::make_unique<FirstPage>(Proposal(), Surroundings());
            page_->show();
            EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
        }
        return *page_;
    }
    /// The widget with this accessible name.
    template <class W>
    W& Named(const char* name) {
        for (W* widget : Page().template findChildren<W*>())
            if (widget->accessibleName() == QString::fromUtf8(name)) return *widget;
        throw std::logic_error(name);
    }
    QString FocusName() { return Page().focusWidget() != nullptr ? Page().focusWidget()->accessibleName() : QString(); }
    void Type(const char* text) { QTest::keyClicks(Page().focusWidget(), QString::fromUtf8(text)); }
    void Press(Qt::Key key) { QTest::keyClick(Page().focusWidget(), key); }
    std::string Words() {
        QString words;
        for (const QLabel* label : Page().findChildren<QLabel*>())
            if (label->isVisible()) words += label->text() + u'\n';
        return words.toStdString();
    }

    std::string chosen_;
    std::unique_ptr<FirstPage> page_;
};

TEST_F(FirstPageTest, TakesTheAnswersOneAfterTheOtherWithEnter) {
    Type("oz7fd/p");
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("Klasse A"));
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    Type("12 34-56 78");
    Press(Qt::Key_Enter);
    Type("oz1abc");
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("Logbibliotek"));
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("UTC offset"));
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    EXPECT_EQ(Page().result(), QDialog::Accepted);
    const FirstAnswers answers = Page().Answers();
    EXPECT_EQ(answers.call, "OZ7FD/P");
    EXPECT_EQ(answers.contestClass, 'B');
    EXPECT_EQ(answers.telephone, "12345678");
    EXPECT_EQ(answers.operatorCall, "OZ1ABC");
    EXPECT_EQ(answers.offset, -1);
    EXPECT_TRUE(fs::exists(root_ / "Vatro 2026" / "setlog.txt"));
    EXPECT_EQ(Content("tables/operator.txt"), "OZ1ABC\r\n");
}

TEST_F(FirstPageTest, NeedsNothingButTheCall) {
    Type("oz7fd");
    for (int i = 0; i < 6; ++i) Press(Qt::Key_Return);
    EXPECT_EQ(Page().result(), QDialog::Accepted);
    EXPECT_EQ(Page().Answers().telephone, "");
}

TEST_F(FirstPageTest, EnterStaysInAnEmptyCallAndSaysWhy) {
    for (int i = 0; i < 4; ++i) Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("Kaldesignal"));
    EXPECT_THAT(Words(), HasSubstr("Skriv jeres kaldesignal."));
    Type("o");
    EXPECT_THAT(Words(), testing::Not(HasSubstr("Skriv jeres kaldesignal.")));
}

TEST_F(FirstPageTest, RemindsQuietlyOfAMissingPortableSuffix) {
    Type("oz7fd");
    EXPECT_THAT(Words(), testing::Not(HasSubstr("Uden /P")));
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("Klasse A")) << "a reminder is no complaint";
    ASSERT_THAT(Words(), HasSubstr("Uden /P finder sammentællingen ikke jeres navn på EDRs liste."));
    for (const QLabel* label : Page().findChildren<QLabel*>())
        EXPECT_FALSE(label->text().startsWith(QStringLiteral("Uden /P")) && label->font().bold());
    auto& call = Named<QLineEdit>("Kaldesignal");
    call.setFocus();
    Press(Qt::Key_End);
    EXPECT_THAT(call.accessibleDescription().toStdString(), HasSubstr("Uden /P"));
    Type("/p");
    EXPECT_THAT(Words(), testing::Not(HasSubstr("Uden /P")));
    EXPECT_EQ(call.accessibleDescription(), QStringLiteral("med /P, nøjagtig som på EDRs liste"));
    Press(Qt::Key_Return);
    EXPECT_THAT(Words(), testing::Not(HasSubstr("Uden /P")));
}

TEST_F(FirstPageTest, LeavingAnEmptyCallDoesNotTakeTheComplaintAway) {
    Type("o");
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    Press(Qt::Key_Tab);
    EXPECT_NE(FocusName(), QStringLiteral("Kaldesignal"));
    EXPECT_THAT(Words(), HasSubstr("Skriv jeres kaldesignal."));
}

TEST_F(FirstPageTest, AHeldEnterIsOneEnter) {
    Type("oz7fd");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    for (int i = 0; i < 10; ++i) QApplication::sendEvent(Page().focusWidget(), &held);
    EXPECT_EQ(FocusName(), QStringLiteral("Kaldesignal"));
}

TEST_F(FirstPageTest, HasOnlyCharactersOfACallAlsoWhenPasted) {
    auto& call = Named<QLineEdit>("Kaldesignal");
    QGuiApplication::clipboard()->setText(QStringLiteral(" oz7.fd-æ /pŁ\n"));
    call.paste();
    EXPECT_EQ(call.text(), QStringLiteral("OZ7FDÆ/P"));
    call.setCursorPosition(3);
    QTest::keyClicks(&call, QStringLiteral("-b"));
    EXPECT_EQ(call.text(), QStringLiteral("OZ7BFDÆ/P"));
    EXPECT_EQ(call.cursorPosition(), 4);
}

TEST_F(FirstPageTest, TabSelectsTheTextOfAField) {
    Type("oz7fd");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), QStringLiteral("Logbibliotek"));
    EXPECT_TRUE(Named<QLineEdit>("Logbibliotek").hasSelectedText());
}

TEST_F(FirstPageTest, EscWritesNothing) {
    Type("oz7fd");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Page().result(), QDialog::Rejected);
    EXPECT_FALSE(Page().isVisible());
    EXPECT_FALSE(fs::exists(root_ / "Vatro 2026"));
}

TEST_F(FirstPageTest, SaysWhatIsWrongWithTheDirectoryAndKeepsTheRest) {
    Put("file", "x");
    auto& directory = Named<QLineEdit>("Logbibliotek");
    Type("oz7fd");
    directory.setText(QString::fromStdString((root_ / "file").string()));
    directory.setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), QStringLiteral("Logbibliotek"));
    EXPECT_THAT(Words(), HasSubstr("Det er en fil. Vælg et bibliotek."));
    Page().accept();
    EXPECT_TRUE(Page().isVisible());
    EXPECT_EQ(Page().Answers().call, "OZ7FD");
    EXPECT_EQ(directory.accessibleDescription(), QStringLiteral("Det er en fil. Vælg et bibliotek."));
}

TEST_F(FirstPageTest, OffersTheLogsOfADirectory) {
    fs::create_directory(root_ / "old");
    Put("old/FD80mSSB.txt", LogOf(312));
    auto& use = *Page().findChild<QCheckBox*>();
    EXPECT_FALSE(use.isVisible());
    Type("oz7fd");
    auto& directory = Named<QLineEdit>("Logbibliotek");
    directory.setFocus();
    directory.setText(QString::fromStdString((root_ / "old").string()));
    Press(Qt::Key_Return);
    EXPECT_THAT(Words(), HasSubstr("Her er allerede logget 312 kontakter"));
    EXPECT_TRUE(use.hasFocus());
    Press(Qt::Key_Return);
    EXPECT_TRUE(use.hasFocus());
    EXPECT_THAT(Words(), HasSubstr("Sæt kryds med mellemrum"));
    Press(Qt::Key_Space);
    EXPECT_TRUE(use.isChecked());
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(Page().result(), QDialog::Accepted);
    EXPECT_EQ(Content("old/FD80mSSB.txt"), LogOf(312));
}

TEST_F(FirstPageTest, AConsentIsForOneDirectory) {
    for (const char* name : {"old", "older"}) {
        fs::create_directory(root_ / name);
        Put(std::string(name) + "/FD80mSSB.txt", LogOf(3));
        chosen_ = (root_ / name).string();
        Named<QLineEdit>("Logbibliotek").setText(QString::fromStdString(chosen_));
        Page().accept();
        EXPECT_FALSE(Page().findChild<QCheckBox*>()->isChecked());
        Page().findChild<QCheckBox*>()->setChecked(true);
    }
}

TEST_F(FirstPageTest, ShowsTheTimeOfTheOffset) {
    EXPECT_THAT(Words(), HasSubstr("Klokken er nu 19:36 UTC. Rigtigt?"));
    Named<QSpinBox>("UTC offset").setValue(-1);
    EXPECT_THAT(Words(), HasSubstr("Klokken er nu 20:36 UTC. Rigtigt?"));
}

TEST_F(FirstPageTest, FitsTheScreenWithEveryMessage) {
    fs::create_directory(root_ / "old");
    Put("old/FD80mSSB.txt", LogOf(312));
    fs::create_directory(root_ / "tables" / "operator.txt");
    Named<QLineEdit>("Logbibliotek").setText(QString::fromStdString((root_ / "old").string()));
    Page().accept();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Page().height() >= Page().minimumSizeHint().height(); }));
    const QSize screen = Page().screen()->availableSize();
    EXPECT_LE(Page().height(), screen.height());
    EXPECT_LE(Page().width(), screen.width());
}

TEST_F(FirstPageTest, EveryFieldHasAnAccessibleNameAndNoAccessKeyIsUsedTwice) {
    std::string keys;
    for (const QLabel* label : Page().findChildren<QLabel*>())
        if (label->buddy() != nullptr && label->text().contains(u'&'))
            keys += FromQt(label->text().mid(label->text().indexOf(u'&') + 1, 1).toUpper());
    for (const QAbstractButton* button : Page().findChildren<QAbstractButton*>())
        if (button->text().contains(u'&')) keys += FromQt(button->text().mid(button->text().indexOf(u'&') + 1, 1).toUpper());
    std::sort(keys.begin(), keys.end());
    EXPECT_GE(keys.size(), 10U);
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << keys;
    for (const QLineEdit* field : Page().findChildren<QLineEdit*>())
        EXPECT_TRUE(field->objectName() == QStringLiteral("qt_spinbox_lineedit") || !field->accessibleName().isEmpty());
}

class FirstStartOfTheProgram : public WindowProgram {
protected:
    FirstStartOfTheProgram() { settings.texts.clear(); }
    /// Answers the page with these keys when it is there.
    void WhenThePageComes(const std::function<void(FirstPage&)>& answer) {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, answer] {
            auto* page = qobject_cast<FirstPage*>(QApplication::activeModalWidget());
            if (page == nullptr) return;
            timer_.stop();
            ++pages_;
            answer(*page);
        });
        timer_.start();
    }
    void Ask() {
        BeginProgram();
        Deliver([] {
            AskAtFirstStart();
            frmRules->Show();
        });
        timer_.stop();
    }
    std::string Stored(const char* key) { return settings.Read("Settings", key).value_or("(missing)"); }

    TemporaryDirectory directory_;
    QTimer timer_;
    int pages_ = 0;
};

TEST_F(FirstStartOfTheProgram, StoresTheAnswersInOneBatch) {
    fs::create_directory(directory_.Path() / "tables");
    settings.texts["SETTINGS/GSFDLIB"] = NativeText(directory_.Path() / "tables");
    const std::string log = NativeText(directory_.Path() / "Vatro 2026");
    WhenThePageComes([&](FirstPage& page) {
        for (QLineEdit* field : page.findChildren<QLineEdit*>()) {
            if (field->accessibleName() == QStringLiteral("Kaldesignal")) field->setText(QStringLiteral("OZ7FD/P"));
            if (field->accessibleName() == QStringLiteral("Telefon")) field->setText(QStringLiteral("86123456"));
            if (field->accessibleName() == QStringLiteral("Operatør")) field->setText(QStringLiteral("OZ1AB"));
            if (field->accessibleName() == QStringLiteral("Logbibliotek")) field->setText(ToQt(log));
        }
        page.findChildren<QRadioButton*>().constLast()->setChecked(true);
        page.findChild<QSpinBox*>()->setValue(-2);
        page.accept();
    });
    Ask();
    EXPECT_EQ(pages_, 1);
    EXPECT_EQ(Stored("MyCall"), "OZ7FD/P");
    EXPECT_EQ(Stored("gsLogLib"), log);
    EXPECT_EQ(Stored("gsKlasse"), "B");
    EXPECT_EQ(Stored("gsTelefon"), "86123456");
    EXPECT_EQ(Stored("LastOP"), "OZ1AB ");
    EXPECT_EQ(Stored("UTC"), "-2");
    EXPECT_EQ(settings.writtenAlone, 0);
}

TEST_F(FirstStartOfTheProgram, TakesADirectoryThatWasChosen) {
    dialogs.chosen = "C:\\elsewhere\\setlog.txt";
    std::string directory;
    WhenThePageComes([&](FirstPage& page) {
        for (QPushButton* button : page.findChildren<QPushButton*>())
            if (button->text().contains(QStringLiteral("ælg"))) button->click();
        directory = page.Answers().directory;
        page.reject();
    });
    Ask();
    EXPECT_EQ(directory, "C:\\elsewhere");
}

TEST_F(FirstStartOfTheProgram, EscStoresNothing) {
    WhenThePageComes([](FirstPage& page) { page.reject(); });
    Ask();
    EXPECT_EQ(pages_, 1);
    EXPECT_THAT(settings.written, IsEmpty());
}

TEST_F(FirstStartOfTheProgram, IsNoneWithACallOrALogDirectory) {
    WhenThePageComes([](FirstPage& page) { page.reject(); });
    settings.texts["SETTINGS/MYCALL"] = "OZ7FD/P";
    Ask();
    EXPECT_EQ(pages_, 0);
}

TEST_F(FirstStartOfTheProgram, AsksNothingBesideAnotherCopy) {
    WhenThePageComes([](FirstPage& page) { page.reject(); });
    class Busy : public Instance {
        bool AnotherCopyRuns() override { return true; }
    } busy;
    InstallPlatform(driver.ProgramFront(), {dialogs, settings, files, clock, help, busy, sound, printer, {1, 2, 3}});
    Ask();
    EXPECT_EQ(pages_, 0);
}

}  // namespace
}  // namespace vatro
