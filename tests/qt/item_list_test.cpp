// SPDX-License-Identifier: MIT
#include "item_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/state.h"
#include "qt/all_schemes.h"
#include "qt/contrast.h"
#include "qt/window_program.h"

namespace vatro {
namespace {

/// A selected row of the log is legible in every scheme, and quiet while the keys go to a field.
class TheSelectedRow : public WindowProgram {
protected:
    TheSelectedRow() {
        StartVatro();
        Dispatch([] {
            desk().log.Append("12:07 DL1ABC          59 -0001 59 -0345  3            OZ1AB      SSB   05-09-26");
            frmMain->log.SetListIndex(0);
        });
        driver.Settle();
    }
    ~TheSelectedRow() override { QApplication::setPalette(QPalette()); }
    ItemList& List() { return WidgetOf<ItemList>(frmMain->log); }
    QImage Row() {
        driver.Settle();
        return List().viewport()->grab(List().visualRect(List().currentIndex())).toImage();
    }
    static QRgb Ground(const QImage& row) { return row.pixel(row.width() - 4, row.height() / 2); }
    static double Contrast(const QImage& row) {
        double best = 1;
        // Without the edge.
        for (int y = 3; y < row.height() - 3; ++y)
            for (int x = 3; x < row.width() - 3; ++x) best = std::max(best, ContrastOf(row.pixel(x, y), Ground(row)));
        return best;
    }
};

TEST_F(TheSelectedRow, IsPaleUntilTheListHasTheKeys) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        Dispatch([] { frmMain->fields[kCallField].SetFocus(); });
        const QImage pale = Row();
        EXPECT_GE(Contrast(pale), 4.5) << scheme;
        EXPECT_GE(ContrastOf(pale.pixel(pale.width() / 2, 0), palette.color(QPalette::Base).rgb()), 1.9) << scheme << ": the edge";
        Dispatch([] { frmMain->log.SetFocus(); });
        const QImage full = Row();
        EXPECT_GE(Contrast(full), 3) << scheme << ", where the colours may be those of the desktop";
        const QRgb base = palette.color(QPalette::Base).rgb();
        EXPECT_GT(ContrastOf(Ground(full), base), 1.5 * ContrastOf(Ground(pale), base)) << scheme;
    }
}

TEST(AListWithLittleRoom, DropsBlanksBeforeItMakesItsLettersSmaller) {
    ItemList list;
    list.setProperty("second", 16);
    const QString call = QStringLiteral("DL7AAQ         0007/0008 12:07");
    EXPECT_EQ(list.Shown(call), call);
    const int column = list.ColumnLeft(26) - list.ColumnLeft(16);
    // Three characters too few.
    list.FitRows(list.WidthFor(28), 31);
    EXPECT_EQ(list.Shown(call), QStringLiteral("DL7AAQ      0007/0008 12:07"));
    EXPECT_NEAR(list.ColumnLeft(26) - list.ColumnLeft(16), column, 1) << "letters of their own size";
    // Nine of the fifteen characters before the second part stay. A longer call moves the rest of its row.
    list.FitRows(list.WidthFor(21), 31);
    EXPECT_EQ(list.Shown(call), QStringLiteral("DL7AAQ   0007/0008 12:07"));
    EXPECT_EQ(list.Shown(QStringLiteral("SM7/OZ1AB/P    0007/0008 12:07")), QStringLiteral("SM7/OZ1AB/P 0007/0008 12:07"));
    EXPECT_LT(list.ColumnLeft(26) - list.ColumnLeft(16), column - 5);
    EXPECT_LE(list.ColumnLeft(31), list.WidthFor(21));
    list.FitRows(0, 0);
    EXPECT_EQ(list.Shown(call), call);
    EXPECT_EQ(list.ColumnLeft(26) - list.ColumnLeft(16), column);
}

}  // namespace
}  // namespace vatro
