// SPDX-License-Identifier: MIT
#include "paper_ends.h"

#include <QFile>
#include <QLabel>
#include <QListView>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

#include "entry/qso_fields.h"
#include "outcome_sign.h"
#include "printer.h"
#include "printing/frmInfo.h"
#include "qt/all_schemes.h"
#include "qt/desktop_program.h"
#include "qt/picture.h"
#include "qt_text.h"

namespace vatro {
namespace {

using namespace literals;

class PaperEndInTheWindow : public DesktopProgram {
protected:
    PaperEndInTheWindow() {
        InstallPlatform(driver.ProgramFront(), {dialogs, settings, watch, clock, help, instance, sound, paper, {1, 2, 3}});
        files.files["LOG\\FD80MSSB.TXT"] = {"13:00 DL9XYZ          59 -0001 59 -0012  3 DL         OZ1DEF     SSB   05-09-26"};
        ends.open = [this](const QUrl& url, const std::function<void()>& failed) {
            opened.append(url.toLocalFile());
            notOpened = failed;
        };
        StartVatro();
    }
    void Choose(MenuItem& entry) {
        Deliver([&] { entry.Choose(); });
        driver.Settle();
    }
    QWidget& Window() const { return *WindowOf(*frmInfo).Top(); }
    template <class W>
    W* In(const char* name) const {
        return Window().findChild<W*>(QLatin1String(name));
    }
    std::string Told() const { return In<QLabel>("paperEnd")->text().toStdString(); }

    QTemporaryDir directory;
    QStringList opened;
    /// The answer that the last one could not be opened.
    std::function<void()> notOpened;
    PaperWatch watch{files};
    QtPrinter device{[] { return false; }};
    PageSurface paper{device};
    PaperEnds ends{qtFront, watch, device};
};

TEST_F(PaperEndInTheWindow, TellsTheFileAndOpensItOrItsDirectory) {
    Choose(frmMain->mnuEfter80mSSB);
    EXPECT_EQ(Told(), "SM80mSSB.txt: 1 kontakt.");
    ASSERT_TRUE(In<QPushButton>("openPaper")->isVisible());
    QTest::mouseClick(In<QPushButton>("openPaper"), Qt::LeftButton);
    QTest::mouseClick(In<QPushButton>("openDirectory"), Qt::LeftButton);
    ASSERT_EQ(opened.size(), 2);
    EXPECT_TRUE(opened[0].endsWith(QStringLiteral("SM80mSSB.txt"))) << opened[0].toStdString();
    EXPECT_TRUE(opened[0].startsWith(opened[1])) << opened[1].toStdString();
    EXPECT_NE(opened[0], opened[1]);
}

TEST_F(PaperEndInTheWindow, ItsButtonsHaveRoomAtLargeText) {
    for (int i = 0; i < 6; ++i) QTest::keyClick(WindowOf(*frmMain).Top(), Qt::Key_Plus, Qt::ControlModifier);
    Choose(frmMain->mnuEfter80mSSB);
    const QList<QPushButton*> buttons = Window().findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 3);
    for (const QPushButton* button : buttons) {
        EXPECT_TRUE(Window().rect().contains(button->geometry())) << button->text().toStdString();
        for (const QPushButton* other : buttons)
            EXPECT_TRUE(other == button || !button->geometry().intersects(other->geometry())) << button->text().toStdString();
    }
    EXPECT_TRUE(Window().screen()->availableGeometry().contains(Window().frameGeometry()));
}

TEST_F(PaperEndInTheWindow, OpensByAccessKeys) {
    Choose(frmMain->mnuEfter80mSSB);
    ASSERT_EQ(ActiveForm(), frmInfo.Peek());
    QTest::keyClick(Window().windowHandle(), Qt::Key_Aring, Qt::AltModifier);
    EXPECT_EQ(opened.size(), 1);
    QTest::keyClick(Window().windowHandle(), Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(opened.size(), 2);
    QTest::keyClick(Window().windowHandle(), Qt::Key_L, Qt::AltModifier);
    EXPECT_FALSE(frmInfo.Loaded());
}

TEST_F(PaperEndInTheWindow, TellsTheFileAndItsDirectoryIfNothingCanOpenIt) {
    settings.texts["SETTINGS/GSLOGLIB"] = FromQt(directory.path());
    const QString pdf = directory.filePath(QStringLiteral("a.pdf"));
    dialogs.chosen = FromQt(pdf);
    Choose(frmMain->mnuUdskriv80mSSB);
    In<QPushButton>("openPaper")->click();
    dialogs.Expect("a.pdf kan ikke åbnes: systemet har intet program, der kan vise den.\n\nFilen ligger i mappen\n" +
                   directory.path().toStdString());
    notOpened();
    In<QPushButton>("openDirectory")->click();
    dialogs.Expect("Mappen kan ikke åbnes: systemet har intet program, der kan vise den.\n\nDen ligger her:\n" +
                   directory.path().toStdString());
    notOpened();
    QFile::remove(pdf);
    In<QPushButton>("openPaper")->click();
    dialogs.Expect("a.pdf findes ikke mere.\n\n" + directory.path().toStdString());
    notOpened();
    EXPECT_TRUE(dialogs.expected.empty());
}

TEST_F(PaperEndInTheWindow, HasATickOrACross) {
    Choose(frmMain->mnuEfter80mSSB);
    ASSERT_NE(In<OutcomeSign>("paperSign"), nullptr);
    EXPECT_TRUE(In<OutcomeSign>("paperSign")->Good());
    EXPECT_TRUE(In<OutcomeSign>("paperSign")->isVisible());
    Choose(frmMain->mnuEfter10mCW);
    EXPECT_FALSE(In<OutcomeSign>("paperSign")->Good());
}

TEST(TheSignOfAnOutcome, IsSeenInEverySchemeAndNotByItsColourAlone) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        OutcomeSign sign;
        sign.setPalette(palette);
        sign.resize(sign.sizeHint());
        const QRgb around = palette.color(QPalette::Window).rgb();
        // Which pixels belong to the sign, whatever the colours.
        std::vector<bool> shapes[2];
        for (const bool good : {false, true}) {
            sign.SetGood(good);
            const QImage picture = PictureOf(sign);
            const QRgb chip = Ground(picture, picture.rect());
            EXPECT_GE(ContrastOf(chip, around), 3) << scheme;
            EXPECT_GE(Contrast(picture, picture.rect().adjusted(3, 3, -3, -3), chip), 4.5) << scheme;
            for (int y = 3; y < picture.height() - 3; ++y)
                for (int x = 3; x < picture.width() - 3; ++x) shapes[good ? 1 : 0].push_back(ContrastOf(picture.pixel(x, y), chip) > 2);
        }
        EXPECT_NE(shapes[0], shapes[1]) << scheme;
    }
}

TEST_F(PaperEndInTheWindow, OfSeveralFilesOnlyTheDirectoryIsOpened) {
    Choose(frmMain->mnuEfterAlt);
    EXPECT_EQ(Told(), "3 filer: 1 kontakt.");
    EXPECT_FALSE(In<QPushButton>("openPaper")->isVisible());
    EXPECT_TRUE(In<QPushButton>("openDirectory")->isVisible());
    QTest::keyClick(Window().windowHandle(), Qt::Key_Aring, Qt::AltModifier);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(PaperEndInTheWindow, WithoutAFileHasNothingToOpen) {
    Choose(frmMain->mnuEfter10mCW);
    EXPECT_EQ(Told(), "Der er ikke lavet nogen fil: FD10mCW.txt findes ikke.");
    EXPECT_FALSE(In<QPushButton>("openPaper")->isVisible());
    EXPECT_FALSE(In<QPushButton>("openDirectory")->isVisible());
}

TEST_F(PaperEndInTheWindow, IsThatOfTheLastCommandAlsoInAWindowThatWasClosed) {
    Choose(frmMain->mnuEfter80mSSB);
    Choose(frmMain->mnuEfterSummary);
    EXPECT_EQ(Told(), "Summary.txt: 1 kontakt.");
    Key({.name = "Esc"});
    ASSERT_FALSE(frmInfo.Loaded());
    Choose(frmMain->mnuFilerDanMult);
    EXPECT_EQ(Told(), "Mult.txt: 1 kontakt.");
}

TEST_F(PaperEndInTheWindow, DoesNotCoverTheEntryFields) {
    Choose(frmMain->mnuEfter80mSSB);
    const QWidget& fields = WidgetOf<QWidget>(frmMain->contactFrame);
    EXPECT_LT(Window().frameGeometry().bottom(), fields.mapToGlobal(QPoint()).y());
}

TEST_F(PaperEndInTheWindow, IsNotChangedByOtherCommands) {
    Choose(frmMain->mnuEfter80mSSB);
    Choose(frmMain->mnuVisLand);
    EXPECT_EQ(Told(), "SM80mSSB.txt: 1 kontakt.");
}

TEST_F(PaperEndInTheWindow, APrintIsNamedAfterItsPaperInTheLogDirectory) {
    settings.texts["SETTINGS/GSLOGLIB"] = FromQt(directory.path());
    const QString pdf = directory.filePath(QStringLiteral("a.pdf"));
    dialogs.chosen = FromQt(pdf);
    Choose(frmMain->mnuUdskriv80mSSB);
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_TRUE(dialogs.asked[0].fileName.ends_with("Log 80m SSB 2026.pdf")) << dialogs.asked[0].fileName;
    EXPECT_EQ(Told(), "Udskrevet til a.pdf: 1 side, 1 kontakt.");
    In<QPushButton>("openPaper")->click();
    EXPECT_EQ(opened, QStringList{pdf});
    dialogs.chosen.reset();
    Choose(frmMain->mnuUdskrivSummary);
    EXPECT_TRUE(dialogs.asked[1].fileName.ends_with("Summary 2026.pdf")) << dialogs.asked[1].fileName;
    EXPECT_EQ(Told(), "Der er ikke udskrevet noget.");
}

TEST_F(PaperEndInTheWindow, LettersTypedOverTheWindowGoToTheCallField) {
    Choose(frmMain->mnuEfter80mSSB);
    ASSERT_EQ(ActiveForm(), frmInfo.Peek());
    for (const char c : std::string_view("oz1abc")) Key({.name = {}, .character = c});
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "OZ1ABC");
    EXPECT_EQ(ActiveForm(), frmMain.Peek());
    EXPECT_TRUE(frmInfo->Visible());
}

TEST_F(PaperEndInTheWindow, KeysBehindTheLetterDoNotWaitForTheWindowSystem) {
    Choose(frmMain->mnuEfter80mSSB);
    QWindow* window = Window().windowHandle();
    QTest::keyClick(window, Qt::Key_O);
    QTest::keyClick(window, Qt::Key_Z);
    QTest::keyClick(window, Qt::Key_Backspace);
    QTest::keyClick(window, Qt::Key_Z);
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "OZ");
}

TEST_F(PaperEndInTheWindow, EnterAndEscCloseTheWindow) {
    for (const char* key : {"Enter", "Esc"}) {
        Choose(frmMain->mnuEfter80mSSB);
        Key({.name = key});
        EXPECT_FALSE(frmInfo.Loaded()) << key;
        EXPECT_EQ(ActiveForm(), frmMain.Peek());
    }
}

}  // namespace
}  // namespace vatro
