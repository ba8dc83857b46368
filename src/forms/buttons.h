// SPDX-License-Identifier: MIT
//
// What is pressed, ticked or chosen, and the frame that holds the choices together.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "control.h"

namespace vatro {

class OptionButton;

/// A frame round other controls, with a caption. The access key in the caption leads to `accessTarget`.
class Frame : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    Frame(Form& form, std::string_view name, std::string_view caption, Control* accessTarget = nullptr);
    const std::string& Caption() const { return caption_; }
    char AccessLetter() const override;
    void UseAccessLetter() override;

private:
    friend class OptionButton;

    std::string caption_;
    Control* accessTarget_;
    /// The choices in it, in the order of their declaration.
    std::vector<OptionButton*> options_;
};

/// A control that the focus stands in, with a caption whose access letter is its own.
class CaptionedControl : public Control {
public:
    CaptionedControl(Form& form, std::string_view name, int index, std::string_view caption)
        : Control(form, name, index), caption_(caption) {}
    bool TakesFocus() const override { return true; }
    const std::string& Caption() const { return caption_; }
    char AccessLetter() const override;

private:
    std::string caption_;
};

/// A button. As default button it is pressed by Enter in any control of the form but another button, as cancel button
/// by Esc.
class Button : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    Button(Form& form, std::string_view name, std::string_view caption) : CaptionedControl(form, name, -1, caption) {}
    bool isDefault = false;
    bool isCancel = false;

    // From the front.

    /// Runs Click if the button is enabled.
    void Press();
    void UseAccessLetter() override { Press(); }
    void UserClicked() override { Press(); }

private:
    bool KeepsEnter() const override { return true; }
    bool UseDefaultKey(KeyCode key) override;
};

/// A box that is ticked or not.
class CheckBox : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    CheckBox(Form& form, std::string_view name, std::string_view caption) : CaptionedControl(form, name, -1, caption) {}
    bool Value() const { return value_; }
    /// Runs Click if the value has become another one.
    void SetValue(bool value);

    // From the front.
    void Flip() { SetValue(!value_); }
    void UseAccessLetter() override { Flip(); }
    void UserClicked() override { Flip(); }

private:
    bool value_ = false;
};

/// One of several choices in a frame, of which one is on at most. Tab leads to the one that is on, the arrow keys from one to
/// the next.
class OptionButton : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    /// The frame must be declared before it.
    OptionButton(Form& form, std::string_view name, int index, std::string_view caption, Frame& group);
    /// Without one that is on, Tab leads to each of them.
    bool TabStop() const override;
    bool Value() const { return value_; }
    /// Turning it on turns the others of its frame off and runs Click, if it was off.
    void SetValue(bool value);

    // From the front.

    /// By the mouse, the blank or an arrow key: takes the focus and is turned on.
    void UserChosen(FocusWay way);
    void UseAccessLetter() override { UserChosen(FocusWay::Key); }
    void UserClicked() override { UserChosen(FocusWay::Mouse); }
    /// The next one of the frame that can take the focus, round at the end, is chosen.
    void UserArrow(bool back);

private:
    Frame& group_;
    bool value_ = false;
};

}  // namespace vatro
