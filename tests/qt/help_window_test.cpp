// SPDX-License-Identifier: MIT
#include "qt/help_window.h"

#include <gtest/gtest.h>

#include "qt/handbook.h"
#include "qt/services.h"

namespace vatro {
namespace {

const QString kContents = QStringLiteral("indhold.html");

TEST(HelpWindow, ShowsTheContentsWhateverFileIsNamed) {
    QtHelp help;
    help.Show("Vatro.chm");
    ASSERT_NE(help.Window(), nullptr);
    EXPECT_TRUE(help.Window()->isVisible());
    EXPECT_EQ(help.Window()->Page(), kContents);
}

TEST(HelpWindow, EveryPageOfTheContentsIsThere) {
    const QStringList pages = HandbookPages();
    EXPECT_GE(pages.size(), 5);
    HelpWindow window;
    for (const QString& page : pages) {
        window.ShowPage(page);
        EXPECT_EQ(window.Page(), page);
    }
}

TEST(HelpWindow, SearchGoesThroughAllPages) {
    HelpWindow window;
    window.ShowPage(kContents);
    ASSERT_TRUE(window.FindNext(QStringLiteral("vatro-cty")));
    EXPECT_EQ(window.SelectedText().toLower(), QStringLiteral("vatro-cty"));
    EXPECT_NE(window.Page(), kContents) << "only the page on the country file names it";
    EXPECT_FALSE(window.FindNext(QStringLiteral("qqzzxx")));
    EXPECT_FALSE(window.FindNext(QString()));
}

}  // namespace
}  // namespace vatro
