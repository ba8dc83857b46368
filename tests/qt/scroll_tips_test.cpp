// SPDX-License-Identifier: MIT
#include "scroll_tips.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

namespace vatro {
namespace {

TEST(AScrollBarWithAValue, ShowsItAsAShareOfItsRange) {
    const ScrollTips tips;
    QWidget window;
    QVBoxLayout rows(&window);
    auto* bar = new QScrollBar(Qt::Horizontal);
    bar->setRange(0, 10000);
    bar->setPageStep(1023);
    bar->setValue(2500);
    rows.addWidget(bar);
    auto* text = new QPlainTextEdit;
    rows.addWidget(text);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(bar->toolTip(), QStringLiteral("25 %"));
    EXPECT_TRUE(text->verticalScrollBar()->toolTip().isEmpty());
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setFocus();
    bar->setValue(7500);
    EXPECT_EQ(bar->toolTip(), QStringLiteral("75 %"));
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible() && QToolTip::text() == QStringLiteral("75 %"); }));
    Q_EMIT bar->sliderMoved(10000);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("100 %"));
    QToolTip::hideText();
}

}  // namespace
}  // namespace vatro
