// SPDX-License-Identifier: MIT
#include "call_mark.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QStatusBar>

#include "bar_widgets.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/qso_fields.h"
#include "frame/state.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "status_panel.h"

namespace vatro {
namespace {

class MarksOfTheCall : public WindowProgram {
protected:
    MarksOfTheCall() {
        StartVatro();
        MarkCall(dynamic_cast<QtFront&>(driver.ProgramFront()));
        desk().log.Append("12:07 DL1ABC          59 -0001 59 -0345  3            OZ1AB      SSB   05-09-26");
    }
    void Type(const char* keys) {
        for (; *keys != 0; ++keys) driver.Press(*keys == ' ' ? KeyStroke{.name = "Tab"} : KeyStroke{.name = {}, .character = *keys});
        driver.Settle();
    }
    StatusPanel& Panel() { return *PanelsOf(WidgetOf<QStatusBar>(frmMain->statusBar)).constFirst(); }
    QLineEdit& Call() { return WidgetOf<QLineEdit>(frmMain->fields[kCallField]); }
    QRgb CallGround() {
        const QImage picture = PictureOf(Call());
        return Ground(picture, picture.rect());
    }
};

TEST_F(MarksOfTheCall, ADuplicateColoursTheCallFieldUntilTheCallIsChanged) {
    const QRgb plain = CallGround();
    Type("DL1ABC");
    EXPECT_EQ(CallGround(), plain);
    Type(" ");
    EXPECT_EQ(Panel().Mark(), PanelMark::Duplicate);
    const QImage picture = PictureOf(Call());
    EXPECT_GE(ContrastOf(CallGround(), plain), 3);
    EXPECT_GE(Contrast(picture, picture.rect(), CallGround()), 4.5);
    Dispatch([] { frmMain->fields[kCallField].SetFocus(); });
    driver.Press({.name = "End"});
    driver.Press({.name = "Backspace"});
    driver.Settle();
    EXPECT_NE(Panel().Mark(), PanelMark::Duplicate);
    EXPECT_EQ(CallGround(), plain);
}

TEST_F(MarksOfTheCall, ADuplicateHasTheSameColoursInThreePlaces) {
    Type("DL1ABC ");
    QWidget& next = WidgetOf<QWidget>(frmQSOnr->exchange);
    for (QWidget* place : {&next, static_cast<QWidget*>(&Panel()), static_cast<QWidget*>(&Call())}) {
        const QImage picture = PictureOf(*place);
        EXPECT_EQ(Ground(picture, picture.rect()), qRgb(255, 0, 0)) << place->metaObject()->className();
        EXPECT_GE(Contrast(picture, picture.rect(), qRgb(255, 0, 0)), 4.5);
    }
}

TEST_F(MarksOfTheCall, FadeWithAnEmptyFieldAndComeBackWithTheNextCall) {
    const QRgb plain = CallGround();
    Type("DL1ABC ");
    const std::string text = frmMain->statusBar.Panel(1);
    Dispatch([] { frmMain->fields[kCallField].SetText(""); });
    driver.Settle();
    EXPECT_EQ(frmMain->statusBar.Panel(1), text);
    EXPECT_TRUE(Panel().Faded());
    EXPECT_EQ(CallGround(), plain);
    Dispatch([] { frmMain->fields[kCallField].SetFocus(); });
    Type("S");
    EXPECT_FALSE(Panel().Faded());
}

TEST_F(MarksOfTheCall, ATextThatIsAboutNoCallIsNotFaded) {
    Dispatch([] {
        frmMain->fields[kCallField].SetText("X");
        frmMain->statusBar.SetPanel(1, "Vatro 80m SSB");
        frmMain->fields[kCallField].SetText("");
    });
    driver.Settle();
    EXPECT_FALSE(Panel().Faded());
}

}  // namespace
}  // namespace vatro
