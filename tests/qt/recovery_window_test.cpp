// SPDX-License-Identifier: MIT
#include "recovery_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "deliver.h"
#include "disk/temporary_world.h"
#include "disk_files.h"
#include "extras/log_lines.h"
#include "program.h"
#include "qt/window_program.h"
#include "safety.h"

namespace vatro {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Finding MergeOf(const std::string& file, std::size_t contacts) {
    Finding finding;
    finding.action = Finding::Action::MergeCopy;
    finding.file = file;
    finding.what = "Kopien har mere.";
    finding.proposal = "De samles.";
    finding.found.contacts = contacts;
    finding.found.first = "05-09-26 12:01";
    finding.found.last = "05-09-26 13:07";
    return finding;
}

Finding TableEmpty() {
    Finding finding;
    finding.file = "lande.txt";
    finding.what = "Tabellen er tom.";
    finding.proposal = "Importer.";
    return finding;
}

std::string AllWords(const QWidget& window) {
    QString words;
    for (const QLabel* label : window.findChildren<QLabel*>()) words += label->text() + u'\n';
    return words.toStdString();
}

TEST(RecoveryWindow, TellsWhatIsThereAndWhatItProposes) {
    const RecoveryWindow window("/media/log", {MergeOf("FD80mSSB.txt", 500), TableEmpty()});
    const std::string words = AllWords(window);
    EXPECT_THAT(words, HasSubstr("/media/log"));
    EXPECT_THAT(words, HasSubstr("FD80mSSB.txt"));
    EXPECT_THAT(words, HasSubstr("500 kontakter, den første 05-09-26 12:01, den sidste 05-09-26 13:07"));
    EXPECT_THAT(words, HasSubstr("Forslag: De samles."));
    EXPECT_THAT(words, HasSubstr("Gør: Importer."));
    EXPECT_TRUE(window.HasProposals());
}

TEST(RecoveryWindow, EnterTakesTheProposalAndEscChangesNothing) {
    for (const auto& [key, result] : {std::pair{Qt::Key_Return, QDialog::Accepted}, std::pair{Qt::Key_Escape, QDialog::Rejected}}) {
        RecoveryWindow window("/media/log", {MergeOf("FD80mSSB.txt", 500)});
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, key);
        EXPECT_EQ(window.result(), result);
        EXPECT_FALSE(window.isVisible());
    }
}

TEST(RecoveryWindow, TakesNoEnterInTheMiddleOfTheProgram) {
    RecoveryWindow window("/media/log", {MergeOf("FD80mSSB.txt", 500)});
    window.TakeNoEnter();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(&window, QStringLiteral("sm7aa 13"));
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_TRUE(window.isVisible());
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->text().startsWith(QStringLiteral("&G"))) QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(window.result(), QDialog::Accepted);
    EXPECT_FALSE(window.isVisible());
}

TEST(RecoveryWindow, ALetterChangesNothing) {
    RecoveryWindow window("/media/log", {MergeOf("FD80mSSB.txt", 500)});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(&window, QStringLiteral("gnjoOZ1AB"));
    EXPECT_TRUE(window.isVisible());
    window.close();
}

TEST(RecoveryWindow, OnlyTellsWhereNothingCanBeDone) {
    const RecoveryWindow window("/media/log", {TableEmpty()});
    EXPECT_FALSE(window.HasProposals());
    EXPECT_EQ(window.findChildren<QPushButton*>().size(), 1);
}

TEST(RecoveryWindow, LetsTheOperatorChooseTheLog) {
    Finding finding = MergeOf("FD80mSSB.txt", 5);
    finding.candidates = {"FD80mSSB.txt", "FD40mSSB.txt", ""};
    const RecoveryWindow window("/media/log", {TableEmpty(), finding});
    EXPECT_THAT(window.Choices(), ElementsAre("", "FD80mSSB.txt"));
    window.findChild<QComboBox*>()->setCurrentIndex(1);
    EXPECT_THAT(window.Choices(), ElementsAre("", "FD40mSSB.txt"));
}

TEST(RecoveryWindow, FitsASmallScreen) {
    const std::vector<Finding> many(10, MergeOf("FD80mSSB.txt", 500));
    RecoveryWindow window("/media/log", many);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_LE(window.height(), window.screen()->availableSize().height());
    EXPECT_LE(window.width(), window.screen()->availableSize().width());
    window.close();
}

class SafetyTest : public WindowProgram {
protected:
    /// Without tables the recovery window would come.
    void PutTables() {
        const std::filesystem::path tables = directory_.Path() / "tables";
        settings.Write("Settings", "gsFDLib", NativeText(tables));
        std::filesystem::create_directory(tables);
        for (const char* table : {"lande.txt", "refpfx.txt"}) std::ofstream(tables / table) << "x\n";
    }

    TemporaryDirectory directory_;
    DiskFiles disk_;
    Safety safety_{disk_, clock, settings, instance};
};

TEST_F(SafetyTest, ClosesWhatAHandlerHasLeftOpenWhenTheOutermostIsOver) {
    std::ofstream(directory_.Path() / "a.txt") << "x\n";
    const std::string path = NativeText(directory_.Path() / "a.txt");
    SafeFiles& safeFiles = safety_.ProgramFiles();
    StartRules();
    Deliver([&] {
        safeFiles.Open(2, path, FileMode::Input);
        Deliver([] {});
        EXPECT_EQ(safeFiles.LineInput(2), "x") << "a handler inside another one closes nothing";
    });
    EXPECT_EQ(NumberOf([&] { safeFiles.LineInput(2); }), 52);
}

TEST_F(SafetyTest, ALogDirectoryThatWasChosenIsInTheSettingsAtOnce) {
    PutTables();
    const std::string directory = NativeText(directory_.Path());
    SafeFiles& safeFiles = safety_.ProgramFiles();
    safeFiles.Open(1, directory + safeFiles.Separator() + "setlog.txt", FileMode::Output);
    safeFiles.Close(1);
    EXPECT_EQ(settings.Read("Settings", "gsLogLib"), directory);
}

TEST_F(SafetyTest, TheLogDirectoryOfTheSettingsIsLocked) {
    settings.Write("Settings", "gsLogLib", NativeText(directory_.Path()));
    PutTables();
    EXPECT_FALSE(safety_.ProgramInstance().AnotherCopyRuns());
    DiskFiles elsewhere;
    FakeInstance alone;
    Safety another(elsewhere, clock, settings, alone);
    EXPECT_TRUE(another.ProgramInstance().AnotherCopyRuns());
}

}  // namespace
}  // namespace vatro
