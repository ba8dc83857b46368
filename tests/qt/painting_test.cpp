// SPDX-License-Identifier: MIT
//
// What is painted after a key: events and pixels, of all widgets of the program. How long it takes is not looked at.
#include <gtest/gtest.h>

#include <QEvent>
#include <QPaintEvent>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/qso_fields.h"
#include "fields.h"
#include "frame/state.h"
#include "item_list.h"
#include "qt/desktop_program.h"
#include "qt/picture.h"

namespace vatro {
namespace {

/// Counts the paint events of all widgets, and the pixels that they cover.
class Paints : public QObject {
public:
    Paints() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
        ++events;
        widgets += " " + std::string(watched->metaObject()->className());
        for (const QRect& part : static_cast<QPaintEvent*>(event)->region()) pixels += part.width() * part.height();
        return false;
    }
    int events = 0;
    int pixels = 0;
    std::string widgets;
};

class AKeyInTheCallField : public DesktopProgram {
protected:
    AKeyInTheCallField() {
        QApplication::setCursorFlashTime(0);
        StartVatro();
        Dispatch([] { desk().log.Append("12:07 OZ1ABC          59 -0001 59 -0345  3            OZ1AB      SSB   05-09-26"); });
        Dispatch([] { frmMain->fields[kCallField].SetFocus(); });
        driver.Settle();
    }
    ~AKeyInTheCallField() override { QApplication::setCursorFlashTime(flash_); }
    QWidget& Call() { return WidgetOf<QWidget>(frmMain->fields[kCallField]); }
    /// The key is painted when it is pressed, and its release paints nothing.
    void ExpectFieldAlone(Qt::Key key, const QString& text) {
        const Paints paints;
        QTest::sendKeyEvent(QTest::Press, &Call(), key, text, Qt::NoModifier);
        driver.Settle();
        EXPECT_GT(paints.events, 0);
        QTest::sendKeyEvent(QTest::Release, &Call(), key, text, Qt::NoModifier);
        driver.Settle();
        EXPECT_LE(paints.events, 2) << paints.widgets;
        EXPECT_LE(paints.pixels, 20000);
    }
    static int Hits() { return frmB4->earlierContacts.ListCount(); }

private:
    int flash_ = QApplication::cursorFlashTime();
};

TEST_F(AKeyInTheCallField, ThatFindsNothingPaintsTheFieldAlone) {
    Type("DL1Q");
    ASSERT_EQ(Hits(), 0);
    const std::string panel = frmMain->statusBar.Panel(1);
    ExpectFieldAlone(Qt::Key_X, QStringLiteral("X"));
    EXPECT_EQ(Field(kCallField), "DL1QX");
    EXPECT_EQ(frmMain->statusBar.Panel(1), panel);
}

TEST_F(AKeyInTheCallField, ThatFindsTheSameContactsPaintsTheFieldAlone) {
    Type("OZ1A");
    ASSERT_EQ(Hits(), 1);
    ExpectFieldAlone(Qt::Key_B, QStringLiteral("B"));
    EXPECT_EQ(Field(kCallField), "OZ1AB");
    EXPECT_EQ(Hits(), 1);
}

TEST_F(AKeyInTheCallField, ThatFindsLessPaintsTheList) {
    Type("OZ1AB");
    ASSERT_EQ(Hits(), 1);
    const auto& list = WidgetOf<ItemList>(frmB4->earlierContacts);
    Type("X");
    ASSERT_EQ(Hits(), 0);
    EXPECT_EQ(list.model()->rowCount(), 0);
    const QImage empty = PictureOf(*list.viewport());
    EXPECT_EQ(Brighter(empty, empty.pixel(0, 0)), 0);
}

/// The largest difference of any pixel in red, green or blue.
int Difference(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) return 256;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    return largest;
}

TEST(ATextThatFillsItsWidget, LooksAsIfItHadAlwaysBeenThere) {
    const auto picture = [](const std::function<void(FittedText&)>& before) {
        FittedText text;
        text.resize(300, 60);
        before(text);
        text.SetTextFont(QStringLiteral("Arial"), 20, true);
        text.setText(QStringLiteral("SSB 59 002"));
        text.resize(200, 80);
        return PictureOf(text);
    };
    const QImage plain = picture([](FittedText&) {});
    EXPECT_GT(Contrast(plain, plain.rect(), plain.pixel(0, 0)), 4.5) << "nothing is drawn";
    // Qt's outline of the same letter is not always the same to the last fraction of a pixel.
    constexpr int kUnseen = 3;
    EXPECT_LE(Difference(picture([](FittedText& text) {
                             text.SetTextFont(QStringLiteral("Arial"), 40, false);
                             text.setText(QStringLiteral("SSB 59 001"));
                             PictureOf(text);
                         }),
                         plain),
              kUnseen);
    EXPECT_LE(Difference(picture([](FittedText& text) {
                             text.setText(QStringLiteral("SSB 59 002"));
                             text.SetTextFont(QStringLiteral("Arial"), 20, false);
                             PictureOf(text);
                         }),
                         plain),
              kUnseen);
}

}  // namespace
}  // namespace vatro
