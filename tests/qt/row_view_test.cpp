// SPDX-License-Identifier: MIT
#include "row_view.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollBar>
#include <QStringListModel>
#include <QTest>

#include "qt/picture.h"

namespace vatro {
namespace {

/// Counts how often a view asks for a row.
class CountedRows : public QStringListModel {
public:
    using QStringListModel::QStringListModel;
    QModelIndex index(int row, int column = 0, const QModelIndex& parent = {}) const override {
        ++asked;
        return QStringListModel::index(row, column, parent);
    }
    void Append(const QString& text) {
        const int row = rowCount();
        insertRow(row);
        setData(QStringListModel::index(row), text);
    }
    mutable int asked = 0;
};

QStringList Lines(int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i) lines.append(QStringLiteral("%1 DL1ABC 59 0001").arg(i));
    return lines;
}

/// The view beside Qt's own, on the same rows.
class ARowView : public testing::Test {
protected:
    static void Furnish(QListView& view, QAbstractItemModel& model) {
        view.setUniformItemSizes(true);
        view.setAlternatingRowColors(true);
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        view.setModel(&model);
        view.resize(200, 171);
        view.setFocusPolicy(Qt::NoFocus);
    }
    void Show(int rows) {
        model.setStringList(Lines(rows));
        Furnish(own, model);
        Furnish(standard, model);
        standard.move(220, 0);
        window.show();
        QCoreApplication::processEvents();
    }
    void ExpectSame(const std::string& after) {
        // Only one of the two could have the focus.
        if (QWidget* focused = window.focusWidget()) focused->clearFocus();
        QCoreApplication::processEvents();
        for (const QModelIndex& row : {model.index(0), model.index(3), model.index(model.rowCount() - 1)})
            EXPECT_EQ(own.visualRect(row), standard.visualRect(row)) << after << ", row " << row.row();
        for (const int y : {0, 40, 100, 170}) EXPECT_EQ(own.indexAt({5, y}).row(), standard.indexAt({5, y}).row()) << after << ", at " << y;
        for (const auto bar : {&QAbstractScrollArea::verticalScrollBar, &QAbstractScrollArea::horizontalScrollBar}) {
            const QScrollBar& mine = *(own.*bar)();
            const QScrollBar& other = *(standard.*bar)();
            EXPECT_EQ(mine.maximum(), other.maximum()) << after;
            EXPECT_EQ(mine.value(), other.value()) << after;
            EXPECT_EQ(mine.isVisible(), other.isVisible()) << after;
            if (mine.maximum() > 0) {
                EXPECT_EQ(mine.pageStep(), other.pageStep()) << after;
            }
        }
        EXPECT_EQ(own.currentIndex().row(), standard.currentIndex().row()) << after;
        EXPECT_TRUE(PictureOf(*own.viewport()) == PictureOf(*standard.viewport())) << after;
    }
    void Key(Qt::Key key) {
        QTest::keyClick(&own, key);
        QTest::keyClick(&standard, key);
        ExpectSame("key " + std::to_string(key));
    }

    CountedRows model;
    QWidget window;
    RowView own{&window};
    QListView standard{&window};
};

TEST_F(ARowView, LooksAndScrollsLikeTheStandardView) {
    for (const int rows : {0, 1, 5, 9, 10, 11, 60}) {
        Show(rows);
        ExpectSame(std::to_string(rows) + " rows");
        for (const auto hint : {QAbstractItemView::EnsureVisible, QAbstractItemView::PositionAtTop, QAbstractItemView::PositionAtBottom,
                                QAbstractItemView::PositionAtCenter})
            for (const int row : {rows - 1, 0, rows / 2, 2}) {
                own.scrollTo(model.index(row), hint);
                standard.scrollTo(model.index(row), hint);
                ExpectSame(std::to_string(rows) + " rows, scrolled to " + std::to_string(row));
            }
    }
}

TEST_F(ARowView, FollowsKeysLikeTheStandardView) {
    Show(60);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageDown,
                              Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Left, Qt::Key_Right, Qt::Key_End, Qt::Key_Down, Qt::Key_PageDown,
                              Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_PageUp})
        Key(key);
}

TEST_F(ARowView, FollowsClicksLikeTheStandardView) {
    Show(60);
    for (const QPoint at : {QPoint(10, 30), QPoint(10, 90), QPoint(150, 5)}) {
        QTest::mouseClick(own.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseClick(standard.viewport(), Qt::LeftButton, {}, at);
        ExpectSame("click");
    }
}

TEST_F(ARowView, FollowsChangesOfTheRowsLikeTheStandardView) {
    Show(3);
    for (int i = 0; i < 12; ++i) {
        model.Append(QStringLiteral("a new row"));
        const QModelIndex last = model.index(model.rowCount() - 1);
        own.setCurrentIndex(last);
        standard.setCurrentIndex(last);
        ExpectSame("appended");
    }
    model.insertRow(0);
    ExpectSame("inserted at the top");
    model.setData(model.index(1), QStringLiteral("a much longer text than that of the other rows, so that it needs a scroll bar"));
    model.removeRow(2);
    ExpectSame("removed");
    model.setStringList(Lines(4));
    ExpectSame("filled anew");
    own.resize(300, 60);
    standard.resize(300, 60);
    ExpectSame("resized");
}

TEST_F(ARowView, AsksForAsManyRowsAfterANewOneHoweverManyThereAre) {
    const auto asked = [&](int rows) {
        model.setStringList(Lines(rows));
        Furnish(own, model);
        window.show();
        QCoreApplication::processEvents();
        model.asked = 0;
        model.Append(QStringLiteral("a new row"));
        own.setCurrentIndex(model.index(rows));
        QCoreApplication::processEvents();
        return model.asked;
    };
    const int few = asked(50);
    EXPECT_GT(few, 0);
    EXPECT_LT(few, 50) << "or all of them are asked for";
    EXPECT_EQ(asked(5000), few);
}

}  // namespace
}  // namespace vatro
