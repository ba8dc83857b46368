// SPDX-License-Identifier: MIT
#include <sys/wait.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLockFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "clock.h"
#include "desktop.h"
#include "dialogs.h"
#include "disk_settings.h"
#include "fields.h"
#include "qt/window_program.h"
#include "qt_text.h"
#include "services.h"
#include "title_room.h"

namespace vatro {

using namespace literals;
using namespace std::string_view_literals;

// --- Settings

/// Settings files that Qt wrote can be read, and Qt reads the files that are written now.
TEST(SettingsFile, IsReadAndWrittenAsQtDoes) {
    std::string all;
    for (int code = 1; code < 256; ++code) all.push_back(static_cast<char>(code));
    const std::vector<std::string> values{all,
                                          std::string(),
                                          "OZ1A  ",
                                          "  x",
                                          "a,b;c=\"d\"",
                                          "C:\\LOG\\x",
                                          "@at %p",
                                          "@@",
                                          "\x01"
                                          "f",
                                          "=1",
                                          "[x]",
                                          "; x",
                                          "#R"};
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("vatro.ini"));
    const std::filesystem::path path = file.toStdU16String();
    for (const std::string& value : values) {
        QSettings(file, QSettings::IniFormat).setValue(QStringLiteral("CW/Tekst1"), ToQt(value));
        EXPECT_EQ(DiskSettings(path).Read("CW", "Tekst1"), value);
        DiskSettings(path).Write("CW", "Tekst2", value);
        EXPECT_EQ(FromQt(QSettings(file, QSettings::IniFormat).value(QStringLiteral("CW/Tekst2")).toString()), value);
        ASSERT_TRUE(QFile::remove(file));
    }
}

// --- One running copy

TEST(OneCopy, IsRefusedWhileAnotherHoldsTheLock) {
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("vatro.lock"));
    QtInstance first(file);
    QtInstance second(file);
    EXPECT_FALSE(first.AnotherCopyRuns());
    EXPECT_TRUE(second.AnotherCopyRuns());
    EXPECT_FALSE(first.AnotherCopyRuns());
}

TEST(OneCopy, TakesTheLockOfAKilledOne) {
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("vatro.lock"));
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        QLockFile lock(file);
        lock.setStaleLockTime(0);
        const char held = lock.tryLock(0) ? 1 : 0;
        static_cast<void>(::write(ready[1], &held, 1) == 1);
        for (;;) ::pause();
    }
    char held = 0;
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    ASSERT_EQ(held, 1);
    QtInstance mine(file);
    EXPECT_TRUE(mine.AnotherCopyRuns());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_FALSE(mine.AnotherCopyRuns());
    ::close(ready[0]);
    ::close(ready[1]);
}

// --- Boxes

class Box : public WindowProgram {
protected:
    std::unique_ptr<QMessageBox> Make(const MessageBox& box) {
        std::unique_ptr<QMessageBox> made(MakeBox(box, nullptr));
        made->show();
        return made;
    }
    static QStringList Texts(const QMessageBox& box) {
        QStringList texts;
        for (const QAbstractButton* button : box.buttons()) texts.append(button->text().remove(u'&'));
        return texts;
    }
};

TEST_F(Box, HasDanishButtonsAndTheProgramsTitle) {
    MessageBox question;
    question.buttons = Buttons::YesNo;
    EXPECT_EQ(Texts(*Make(question)), (QStringList{QStringLiteral("Ja"), QStringLiteral("Nej")}));
    EXPECT_EQ(Texts(*Make({})), (QStringList{QStringLiteral("OK")}));
    EXPECT_EQ(Make({})->windowTitle(), QStringLiteral("vatro"));
}

TEST_F(Box, HasTheProgramsNameOnADesktop) {
    dynamic_cast<QtFront&>(driver.ProgramFront()).desktopHabits = true;
    EXPECT_EQ(Make({})->windowTitle(), QStringLiteral("Vatro"));
    MessageBox titled;
    titled.title = "UTC offset";
    EXPECT_EQ(Make(titled)->windowTitle(), QStringLiteral("UTC offset"));
}

TEST_F(Box, IsAsWideAsItsTitleOnADesktop) {
    dynamic_cast<QtFront&>(driver.ProgramFront()).desktopHabits = true;
    MessageBox box;
    box.title = "Logbiblioteket er måske i brug"_t;
    box.text = "?";
    const auto made = Make(box);
    EXPECT_GE(made->width(), WidthForTitle(made->windowTitle()));
    const auto shorter = Make({});
    EXPECT_LT(shorter->width(), made->width());
}

TEST_F(Box, WithoutAnIconHasItsTextInTheMiddle) {
    MessageBox told;
    told.text = "A text that is wider than the button below it";
    const auto box = Make(told);
    const auto* text = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    // Except for the spacing of the layout's columns.
    EXPECT_NEAR(text->x(), box->width() - text->geometry().right(), box->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) + 2);
    EXPECT_EQ(text->indent(), 0);
}

TEST_F(Box, HasTheFirstButtonAsDefaultUnlessToldOtherwise) {
    MessageBox question;
    question.buttons = Buttons::YesNo;
    EXPECT_EQ(Make(question)->defaultButton()->text(), QStringLiteral("&Ja"));
    question.defaultNo = true;
    EXPECT_EQ(Make(question)->defaultButton()->text(), QStringLiteral("&Nej"));
}

TEST_F(Box, AnswersByItsButtonsAndByEsc) {
    MessageBox question;
    question.buttons = Buttons::YesNo;
    auto yes = Make(question);
    QTest::mouseClick(yes->buttons().constFirst(), Qt::LeftButton);
    EXPECT_EQ(AnswerOf(*yes), Answer::Yes);
    auto esc = Make(question);
    QTest::keyClick(esc.get(), Qt::Key_Escape);
    EXPECT_FALSE(esc->isVisible());
    EXPECT_EQ(AnswerOf(*esc), Answer::No);
    auto ok = Make({});
    QTest::keyClick(ok.get(), Qt::Key_Escape);
    EXPECT_EQ(AnswerOf(*ok), Answer::Ok);
}

TEST_F(Box, ShowsItsTextAsItStands) {
    MessageBox box;
    box.text = "<b>1 < 2</b> & Ø"_t;
    const auto made = Make(box);
    EXPECT_EQ(made->text(), QStringLiteral("<b>1 < 2</b> & Ø"));
    EXPECT_EQ(made->textFormat(), Qt::PlainText);
}

// --- File dialogues

/// An environment variable set for the duration of the test.
class Variable {
public:
    Variable(const char* name, const QString& value) : name_(name), was_(qgetenv(name)) { qputenv(name, value.toUtf8()); }
    ~Variable() { was_.isNull() ? qunsetenv(name_) : qputenv(name_, was_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    QByteArray was_;
};

/// Asks for the marker file of a directory. The dialogues are answered with these directories in turn, and finally with Esc.
/// The result is the file, or "cancelled".
class DirectoryAsked {
public:
    explicit DirectoryAsked(QStringList answers) : answers_(std::move(answers)) {}

    std::string Ask(QtDialogs& dialogs) {
        scope_ = std::make_unique<QObject>();
        QTimer::singleShot(0, scope_.get(), [this] { AnswerNext(); });
        FileDialog dialog;
        dialog.title = "V\xE6lg";
        dialog.fileName = "setlog.txt";
        dialog.filter = "setlog.txt (*.txt)|*.txt";
        dialog.overwritePrompt = true;
        dialog.markerFile = true;
        std::string chosen = "cancelled";
        try {
            chosen = dialogs.SaveFile(dialog);
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.Which(), Failure::Cancelled);
        }
        scope_.reset();
        return chosen;
    }

    /// The directory in which each dialogue started.
    QStringList begun;
    /// The last dialogue with its frame.
    QRect frame;
    /// The boxes shown instead of a dialogue; they are closed.
    QStringList told;

private:
    void AnswerNext() {
        QTimer::singleShot(0, scope_.get(), [this] { AnswerNext(); });
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told.append(box->text());
            box->reject();
            return;
        }
        auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (chooser == nullptr) return;
        begun.append(chooser->directory().absolutePath());
        frame = chooser->frameGeometry();
        if (answers_.isEmpty()) {
            chooser->reject();
            return;
        }
        chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(answers_.takeFirst());
        QMetaObject::invokeMethod(chooser, "accept");
    }

    QStringList answers_;
    /// Exists while the question is open.
    std::unique_ptr<QObject> scope_;
};

TEST_F(WindowProgram, AFileDialogueIsNoLargerThanTheScreenAtLargeText) {
    QtHelp handbook;
    const Desktop desktop(dynamic_cast<QtFront&>(driver.ProgramFront()), handbook);
    settings.texts["SETTINGS/TEKSTSTR"] = "6";
    StartVatro();
    QtDialogs asked;
    DirectoryAsked directory({});
    EXPECT_EQ(directory.Ask(asked), "cancelled");
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    EXPECT_LE(directory.frame.width(), screen.width());
    EXPECT_LE(directory.frame.height(), screen.height());
}

TEST_F(WindowProgram, ADirectoryIsSoughtAmongTheUsersOwnAndThenWhereTheLastOneWas) {
    const QTemporaryDir home;
    const Variable variable("HOME", home.path());
    const Variable none("XDG_CONFIG_HOME", home.path());
    BeginProgram();
    QtDialogs asked;
    DirectoryAsked first({});
    EXPECT_EQ(first.Ask(asked), "cancelled");
    EXPECT_EQ(first.begun, QStringList{home.path()}) << "without a folder of documents";
    ASSERT_TRUE(QDir(home.path()).mkpath(QStringLiteral("Documents")));
    ASSERT_TRUE(QDir(home.path()).mkpath(QStringLiteral("contest")));
    DirectoryAsked second({home.filePath(QStringLiteral("contest"))});
    EXPECT_EQ(second.Ask(asked), home.filePath(QStringLiteral("contest/setlog.txt")).toStdString());
    EXPECT_EQ(second.begun, QStringList{home.filePath(QStringLiteral("Documents"))});
    DirectoryAsked third({});
    EXPECT_EQ(third.Ask(asked), "cancelled");
    EXPECT_EQ(third.begun, QStringList{home.filePath(QStringLiteral("contest"))});
    EndProgram();
}

TEST_F(WindowProgram, AMarkerFileIsNeverAFileThatTheUserHasChosen) {
    const QTemporaryDir home;
    const Variable variable("HOME", home.path());
    const QString log = home.filePath(QStringLiteral("FD80mSSB.txt"));
    QFile file(log);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QFile marker(home.filePath(QStringLiteral("setlog.txt")));
    ASSERT_TRUE(marker.open(QIODevice::WriteOnly));
    BeginProgram();
    QtDialogs asked;
    DirectoryAsked choosing({log, home.path()});
    EXPECT_EQ(choosing.Ask(asked), home.filePath(QStringLiteral("setlog.txt")).toStdString());
    // The log is not accepted, and nothing is asked about the existing marker file.
    EXPECT_EQ(choosing.begun.size(), 2);
    EXPECT_EQ(choosing.told, QStringList());
    EndProgram();
}

TEST_F(WindowProgram, ADirectoryThatTheCodePageCannotNameIsRefusedAndAskedForAgain) {
    const QTemporaryDir home;
    const Variable variable("HOME", home.path());
    for (const QString& name : {QStringLiteral("Логи"), QStringLiteral("Blåbær")}) ASSERT_TRUE(QDir(home.path()).mkpath(name));
    BeginProgram();
    QtDialogs asked;
    DirectoryAsked choosing({home.filePath(QStringLiteral("Логи")), home.filePath(QStringLiteral("Blåbær"))});
    EXPECT_EQ(choosing.Ask(asked), home.path().toStdString() + std::string("/Blåbær/setlog.txt"_t));
    ASSERT_EQ(choosing.told.size(), 1);
    EXPECT_TRUE(choosing.told[0].contains(home.filePath(QStringLiteral("Логи")))) << choosing.told[0].toStdString();
    EXPECT_EQ(choosing.begun, (QStringList{home.path(), home.path()}));
    EXPECT_TRUE(QDir(home.filePath(QStringLiteral("Логи"))).isEmpty());
    EndProgram();
}

// --- Clock

class FrmTicking : public Form {
public:
    FrmTicking() : Form("frmTicking", FormKind::Dialog, "Ticking") {}
    Timer Timer1{*this, "Timer1", 1};
};

TEST_F(WindowProgram, TimersTickUntilTheyAreSwitchedOff) {
    QtClock ticking;
    InstallPlatform(driver.ProgramFront(), {dialogs, settings, files, ticking, help, instance, sound, printer, {1, 2, 3}});
    BeginProgram();
    Dispatch([] { frmRules.Load(); });
    FrmTicking form;
    int ticks = 0;
    form.Timer1.OnTimer = [&] {
        if (++ticks == 3) form.Timer1.SetRunning(false);
    };
    form.Timer1.SetRunning(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    QTest::qWait(20);
    EXPECT_EQ(ticks, 3);
    EndProgram();
    InstallPlatform(driver.ProgramFront(), {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
}

// --- Text in points

TEST_F(WindowProgram, WidthOfATextGrowsWithItsSize) {
    Front& window = driver.ProgramFront();
    const double one = window.TextWidth("SSB 59 012", {"Arial", 10, true});
    EXPECT_GT(one, 40);
    EXPECT_DOUBLE_EQ(window.TextWidth("SSB 59 012", {"Arial", 150, true}), 15 * one);
    EXPECT_GT(window.TextWidth("SSB 59 0123", {"Arial", 10, true}), one);
    EXPECT_EQ(window.TextWidth("", {"Arial", 10, true}), 0);
}

TEST(FittedLetters, AreNeverCutAndFillTheHeight) {
    FittedText text;
    text.SetTextFont(QStringLiteral("Arial"), 75, true);
    text.SetColours(Qt::black, Qt::white);
    text.setText(QStringLiteral("SSB 59 012"));
    text.resize(600, 100);
    const QImage picture = text.grab().toImage();
    int top = picture.height();
    int bottom = -1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 128) {
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    EXPECT_GT(top, 0);
    EXPECT_LT(bottom, picture.height() - 1);
    EXPECT_GT(bottom - top, picture.height() * 2 / 3);
}

}  // namespace vatro
