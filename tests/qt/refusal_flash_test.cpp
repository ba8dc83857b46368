// SPDX-License-Identifier: MIT
#include "refusal_flash.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "desktop.h"
#include "entry/qso_fields.h"
#include "qt/all_schemes.h"
#include "qt/picture.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

class ARefusedCharacter : public WindowProgram {
protected:
    void StartIn(int field) {
        StartVatro();
        Dispatch([field] { frmMain->fields[field].SetFocus(); });
        driver.Settle();
    }
    void Type(std::string_view text) {
        for (const char c : text) {
            driver.Press({.name = {}, .character = c});
            driver.Settle();
        }
    }
    QLineEdit& Widget(int field) const { return WidgetOf<QLineEdit>(frmMain->fields[field]); }
    /// The flash around this field, or null.
    RefusalFlash* FlashOf(int field) const {
        for (auto* flash : WindowOf(*frmMain).Top()->findChildren<RefusalFlash*>())
            if (flash->isVisible() && flash->geometry().contains(Widget(field).geometry())) return flash;
        return nullptr;
    }
};

class ARefusedCharacterOnTheDesktop : public ARefusedCharacter {
protected:
    QtHelp handbook;
    Desktop desktop{dynamic_cast<QtFront&>(driver.ProgramFront()), handbook};
};

TEST_F(ARefusedCharacterOnTheDesktop, FlashesItsFieldForAMoment) {
    StartIn(kNumberReceivedField);
    Type("1");
    EXPECT_EQ(FlashOf(kNumberReceivedField), nullptr);
    Type("x");
    EXPECT_EQ(frmMain->fields[kNumberReceivedField].Text(), "1");
    EXPECT_NE(FlashOf(kNumberReceivedField), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return FlashOf(kNumberReceivedField) == nullptr; }, 3000));
}

TEST_F(ARefusedCharacterOnTheDesktop, FlashesAFieldThatIsFull) {
    StartIn(kNumberReceivedField);
    Type("1234");
    EXPECT_EQ(FlashOf(kNumberReceivedField), nullptr);
    Type("5");
    EXPECT_NE(FlashOf(kNumberReceivedField), nullptr);
}

TEST_F(ARefusedCharacterOnTheDesktop, IsNotABlankThatGoesToTheNextField) {
    StartIn(kCallField);
    Type("dl7 ");
    EXPECT_TRUE(frmMain->fields[kNumberReceivedField].HasFocus());
    for (const int field : {kCallField, kNumberReceivedField}) EXPECT_EQ(FlashOf(field), nullptr);
}

TEST_F(ARefusedCharacterOnTheDesktop, FlashesWhenItIsPasted) {
    StartIn(kNumberReceivedField);
    QApplication::clipboard()->setText(QStringLiteral("1E9"));
    QTest::keyClick(WindowOf(*frmMain).Top()->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_NE(FlashOf(kNumberReceivedField), nullptr);
}

TEST_F(ARefusedCharacterOnTheDesktop, TakesNoKeysAndNoClicks) {
    StartIn(kNumberReceivedField);
    Type("x2");
    ASSERT_NE(FlashOf(kNumberReceivedField), nullptr);
    EXPECT_EQ(frmMain->fields[kNumberReceivedField].Text(), "2");
    EXPECT_TRUE(FlashOf(kNumberReceivedField)->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(FlashOf(kNumberReceivedField)->focusPolicy(), Qt::NoFocus);
}

TEST_F(ARefusedCharacter, FlashesNothingUnderTheRulesAlone) {
    StartIn(kNumberReceivedField);
    Type("x");
    EXPECT_TRUE(WindowOf(*frmMain).Top()->findChildren<RefusalFlash*>().isEmpty());
}

TEST(TheRefusalFlash, IsSeenInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QWidget window;
        window.setPalette(palette);
        QLineEdit field(&window);
        field.setGeometry(20, 20, 200, 40);
        window.resize(240, 80);
        const QImage before = PictureOf(window);
        RefusalFlash::Flash(field);
        const QImage after = PictureOf(window);
        // Three pixels from the edge, where the frame of a field with the focus can be as well, and in the middle.
        for (const QPoint& at : {QPoint(120, 23), QPoint(120, 19)})
            EXPECT_GE(ContrastOf(after.pixel(at), palette.color(QPalette::Window).rgb()), 3) << scheme << ' ' << at.y();
        EXPECT_NE(after.pixel(120, 40), before.pixel(120, 40)) << scheme;
    }
}

}  // namespace
}  // namespace vatro
