// SPDX-License-Identifier: MIT
#include "by_kind.h"

#include <gtest/gtest.h>

#include <string>

#include "forms.h"

namespace vatro {
namespace {

struct FrmKinds : public Form {
    FrmKinds() : Form("frmKinds", FormKind::Dialog, "Kinds") {}
    TextBox field{*this, "Text1"};
    TextView text{*this, "Text2"};
    ComboBox combo{*this, "cboCall"};
    Frame frame{*this, "Frame1", "Report"};
    OptionButton option{*this, "optRST", 0, "599", frame};
    Button button{*this, "cmdOK", "OK"};
    Timer timer{*this, "Timer1", 1000};
};

/// Which of four cases is chosen: one for a single class, one for a base class, one for a more general base class, one for any
/// control.
std::string Taken(Control& control) {
    return ByKind(
        control, [](TextView&) { return std::string("a text"); }, [](TextControl& own) { return "with a caret " + own.Text(); },
        [](CaptionedControl& own) { return "with a caption " + own.Caption(); }, [](Control&) { return std::string("any"); });
}

TEST(ByKind, TakesTheCaseOfTheKindItself) {
    FrmKinds form;
    EXPECT_EQ(Taken(form.text), "a text");
}

TEST(ByKind, TakesTheCaseOfTheNearestClassBehindTheKind) {
    FrmKinds form;
    form.field.SetText("OZ1ABC");
    EXPECT_EQ(Taken(form.field), "with a caret OZ1ABC");
    EXPECT_EQ(Taken(form.combo), "with a caret ");
    EXPECT_EQ(Taken(form.option), "with a caption 599");
    EXPECT_EQ(Taken(form.button), "with a caption OK");
    EXPECT_EQ(Taken(form.frame), "any");
    EXPECT_EQ(Taken(form.timer), "any");
}

TEST(ByKind, HandsOverTheControlItself) {
    FrmKinds form;
    for (Control* control : form.Controls()) EXPECT_EQ(ByKind(*control, [](Control& own) { return &own; }), control);
    const Control& looked = form.button;
    EXPECT_EQ(ByKind(
                  looked, [](const Button& own) { return own.Caption(); }, [](const Control&) { return std::string(); }),
              "OK");
}

TEST(ByKind, AnswersTheOneQuestionForAKind) {
    FrmKinds form;
    EXPECT_EQ(As<TextControl>(static_cast<Control*>(&form.combo)), &form.combo);
    EXPECT_EQ(As<TextBox>(static_cast<Control*>(&form.combo)), nullptr);
    EXPECT_EQ(As<Timer>(static_cast<const Control*>(&form.timer)), &form.timer);
    EXPECT_EQ(As<Timer>(static_cast<Control*>(nullptr)), nullptr);
}

}  // namespace
}  // namespace vatro
