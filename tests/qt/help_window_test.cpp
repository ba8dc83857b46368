// SPDX-License-Identifier: MIT
//
// The help viewer, and the Quick Info picture in its own window.
#include "help_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>

#include "exchange/FormQuickInfo.h"
#include "handbook.h"
#include "picture_view.h"
#include "qt/contrast.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "readable.h"
#include "schemes.h"
#include "services.h"

namespace vatro {

namespace {

QString Html(const QString& page) {
    QFile file(HandbookFile(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class HelpViewer : public ::testing::Test {
protected:
    HelpViewer() {
        help.Show("Vatro.chm");
        EXPECT_TRUE(QTest::qWaitForWindowActive(help.Window()));
    }
    HelpWindow& Window() { return *help.Window(); }
    QTreeWidget& Contents() { return *Window().findChild<QTreeWidget*>(); }
    QLineEdit& Wanted() { return *Window().findChild<QLineEdit*>(QStringLiteral("wanted")); }
    QtHelp help;
};

}  // namespace

TEST_F(HelpViewer, IsNoLargerThanTheScreen) {
    const QSize screen = Window().screen()->availableSize();
    EXPECT_LE(Window().frameGeometry().width(), screen.width());
    EXPECT_LE(Window().frameGeometry().height(), screen.height());
}

TEST_F(HelpViewer, OpensAtTheContents) {
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().windowModality(), Qt::NonModal);
    EXPECT_EQ(Window().Page(), QStringLiteral("indhold.html"));
}

/// The ground and the ink of desktops: light, dark with and without a link colour of its own, and the program's scheme for the night.
struct DesktopColours {
    QRgb ground;
    QRgb text;
    QRgb link;
};
constexpr DesktopColours kSchemes[]{{0xffffffff, 0xff000000, 0xff0000ff},
                                    {0xff1b1e20, 0xfffcfcfc, 0xff0000ff},
                                    {0xff1b1e20, 0xfffcfcfc, 0xff2980b9},
                                    {0xff000000, 0xffd83828, 0xffd83828}};

TEST_F(HelpViewer, HasLinksThatCanBeReadInEveryScheme) {
    for (const DesktopColours& scheme : kSchemes) {
        QPalette palette;
        palette.setColor(QPalette::Base, scheme.ground);
        palette.setColor(QPalette::Text, scheme.text);
        palette.setColor(QPalette::Link, scheme.link);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const auto& browser = *Window().findChild<QTextBrowser*>();
        int links = 0;
        for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                if (!format.isAnchor() || format.anchorHref().isEmpty()) continue;
                ++links;
                EXPECT_GE(ContrastOf(format.foreground().color().rgb(), browser.palette().color(QPalette::Base).rgb()), 4.5);
                EXPECT_EQ(browser.palette().color(QPalette::Base).rgb(), scheme.ground);
            }
        EXPECT_GT(links, 10);
        EXPECT_GE(ContrastOf(Wanted().palette().color(QPalette::PlaceholderText).rgb(), scheme.ground), 4.5);
    }
    QApplication::setPalette(QPalette());
}

TEST_F(HelpViewer, IsNothingButRedAtNight) {
    UseScheme(Scheme::Night);
    // A page with a table.
    Window().ShowPage(QStringLiteral("morse.html"));
    QTest::qWait(50);
    const auto* bar = Window().findChild<QToolBar*>();
    ASSERT_NE(bar, nullptr);
    for (QWidget* part :
         {static_cast<QWidget*>(Window().findChild<QToolBar*>()), static_cast<QWidget*>(Window().findChild<QTextBrowser*>())})
        EXPECT_EQ(Brighter(PictureOf(*part), NightPalette().color(QPalette::Text).rgb()), 0) << part->metaObject()->className();
    UseScheme(Scheme::Desktop);
}

TEST(ReadableInk, IsTheInkItselfWhereItCanBeRead) {
    EXPECT_EQ(ReadableOn(Qt::white, Qt::blue), QColor(Qt::blue));
    EXPECT_NE(ReadableOn(Qt::black, Qt::blue), QColor(Qt::blue));
    EXPECT_EQ(ReadableOn(Qt::black, Qt::black).lightness() > 100, true);
}

TEST_F(HelpViewer, IsOneWindowHoweverOftenItIsOpened) {
    const HelpWindow* const first = help.Window();
    Window().ShowPage(QStringLiteral("fejl.html"));
    Window().close();
    help.Show("Vatro.chm");
    EXPECT_EQ(help.Window(), first);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().Page(), QStringLiteral("indhold.html"));
}

TEST_F(HelpViewer, HasEveryPageThatIsLinkedTo) {
    const QStringList pages = HandbookPages();
    EXPECT_GE(pages.size(), 5);
    static const QRegularExpression link(QStringLiteral("(?:href|src)=\"([^\"#:]+)(?:#([^\"]+))?\""));
    for (const QString& page : pages) {
        ASSERT_FALSE(Html(page).isEmpty()) << page.toStdString();
        for (const auto& found : link.globalMatch(Html(page))) {
            EXPECT_TRUE(QFile::exists(HandbookFile(found.captured(1)))) << page.toStdString() << ": " << found.captured().toStdString();
            if (found.captured(2).isEmpty()) continue;
            const QString anchor = u'"' + found.captured(2) + u'"';
            EXPECT_TRUE(Html(found.captured(1)).contains(anchor)) << page.toStdString() << ": " << found.captured().toStdString();
        }
    }
}

TEST_F(HelpViewer, GoesToTheEntriesOfItsContents) {
    const QList<QTreeWidgetItem*> found = Contents().findItems(QStringLiteral("Landefilen cty.dat"), Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1);
    Contents().setCurrentItem(found.front());
    EXPECT_EQ(Window().Page(), QStringLiteral("landefil.html"));
}

TEST_F(HelpViewer, GoesBackByKey) {
    Window().ShowPage(QStringLiteral("landefil.html"));
    QTest::keyClick(&Window(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Window().Page(), QStringLiteral("indhold.html"));
    QTest::keyClick(&Window(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Window().Page(), QStringLiteral("landefil.html"));
    QTest::keyClick(&Window(), Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Window().Page(), QStringLiteral("indhold.html"));
}

TEST_F(HelpViewer, FindsFromPageToPageAndRoundAtTheEnd) {
    // The text occurs only on other pages: the table of contents does not name the file.
    ASSERT_TRUE(Window().FindNext(QStringLiteral("REFPFX.TXT")));
    const QString first = Window().Page();
    EXPECT_NE(first, QStringLiteral("indhold.html"));
    EXPECT_EQ(Window().SelectedText().toLower(), QStringLiteral("refpfx.txt"));
    QStringList visited{first};
    for (int finds = 0; finds < 200; ++finds) {
        ASSERT_TRUE(Window().FindNext(QStringLiteral("refpfx.txt")));
        if (visited.back() == Window().Page()) continue;
        visited.append(Window().Page());
        if (visited.back() == first) break;
    }
    EXPECT_EQ(visited.back(), first);
}

TEST_F(HelpViewer, TellsWhatIsNowhere) {
    EXPECT_FALSE(Window().FindNext({}));
    EXPECT_FALSE(Window().FindNext(QStringLiteral("qwertyuiop")));
    const auto* told = Window().statusBar()->findChild<QLabel*>();
    EXPECT_TRUE(told->text().contains(QStringLiteral("qwertyuiop")));
    EXPECT_TRUE(Window().FindNext(QStringLiteral("cty.dat")));
    EXPECT_EQ(told->text(), QString());
}

TEST_F(HelpViewer, SearchIsReachedAndRepeatedByKey) {
    QTest::keyClick(&Window(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Wanted().hasFocus());
    QTest::keyClicks(&Wanted(), QStringLiteral("landefil"));
    QTest::keyClick(&Wanted(), Qt::Key_Return);
    EXPECT_EQ(Window().SelectedText().toLower(), QStringLiteral("landefil"));
    auto* browser = Window().findChild<QTextBrowser*>();
    const QString page = Window().Page();
    const int place = browser->textCursor().position();
    QTest::keyClick(&Window(), Qt::Key_F3);
    EXPECT_EQ(Window().SelectedText().toLower(), QStringLiteral("landefil"));
    EXPECT_TRUE(Window().Page() != page || browser->textCursor().position() != place);
}

TEST_F(HelpViewer, EscClosesIt) {
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(WindowProgram, QuickInfoShowsItsPictureOnAnyScreen) {
    StartVatro();
    Dispatch([] { formQuickInfo.Load(); });
    const auto& picture = WidgetOf<PictureView>(formQuickInfo->picture);
    ASSERT_FALSE(picture.Picture().isNull());
    const QSize screen = picture.screen()->availableSize();
    EXPECT_LE(picture.sizeHint().width(), screen.width());
    EXPECT_LE(picture.sizeHint().height(), screen.height());
    Dispatch([] { formQuickInfo->Show(); });
    driver.Settle();
    EXPECT_EQ(picture.size(), picture.window()->size());
    EXPECT_GE(picture.width(), picture.sizeHint().width());
}

}  // namespace vatro
