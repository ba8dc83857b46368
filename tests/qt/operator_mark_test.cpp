// SPDX-License-Identifier: MIT
#include "operator_mark.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include "entry/frmMain.h"
#include "qt/all_schemes.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "qt_text.h"

namespace vatro {
namespace {

class TheOperatorField : public WindowProgram {
protected:
    TheOperatorField() {
        StartVatro();
        MarkOperator(dynamic_cast<const QtFront&>(driver.ProgramFront()));
        SetOperator("OZ1AB");
    }
    ~TheOperatorField() override { QApplication::setPalette(QPalette()); }
    void SetOperator(const char* call) {
        Dispatch([call] { frmMain->operatorBox.SetText(call); });
        driver.Settle();
    }
    QComboBox& Box() const { return WidgetOf<QComboBox>(frmMain->operatorBox); }
    /// The text's part of the field.
    QImage Picture() const { return PictureOf(Box()).copy(Box().lineEdit()->geometry()); }
    static QRgb GroundOf(const QImage& picture) { return Ground(picture, picture.rect()); }
};

TEST_F(TheOperatorField, HasAColourAndAWordWhileItIsEmpty) {
    const QRgb plain = GroundOf(Picture());
    EXPECT_EQ(Box().toolTip(), QStringLiteral("Skriv/vælg operatørcall"));
    SetOperator("");
    EXPECT_NE(GroundOf(Picture()), plain);
    EXPECT_GE(Contrast(Picture(), Picture().rect(), GroundOf(Picture())), 4.5) << "the word";
    EXPECT_EQ(Box().toolTip(), QStringLiteral("Ingen operatør. Skriv/vælg operatørcall"));
    SetOperator("OZ7XYZ");
    EXPECT_EQ(GroundOf(Picture()), plain);
    EXPECT_EQ(Box().toolTip(), QStringLiteral("Skriv/vælg operatørcall"));
}

TEST_F(TheOperatorField, StandsOutAndCanBeReadInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        SetOperator("OZ1AB");
        const QRgb plain = GroundOf(Picture());
        SetOperator("");
        EXPECT_NE(GroundOf(Picture()), plain) << scheme;
        EXPECT_GE(Contrast(Picture(), Picture().rect(), GroundOf(Picture())), 4.5) << scheme;
    }
    EXPECT_EQ(Brighter(Picture(), NightPalette().color(QPalette::Text).rgb()), 0);
}

TEST_F(TheOperatorField, HasItsUsualListWhileItIsEmpty) {
    SetOperator("");
    EXPECT_EQ(Box().view()->palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST_F(TheOperatorField, KeepsItsTextEmptyForTheProgram) {
    SetOperator("");
    EXPECT_EQ(frmMain->operatorBox.Text(), "");
    // As after a start without an operator.
    SetOperator("      ");
    EXPECT_EQ(frmMain->operatorBox.Text(), "      ");
    EXPECT_TRUE(Box().toolTip().startsWith(QStringLiteral("Ingen operatør")));
    EXPECT_GE(Contrast(Picture(), Picture().rect(), GroundOf(Picture())), 4.5);
}

}  // namespace
}  // namespace vatro
