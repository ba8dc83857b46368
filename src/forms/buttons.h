// SPDX-License-Identifier: MIT
//
// Buttons, check boxes and option buttons, and the frame that groups option buttons.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "control.h"

namespace vatro {

class OptionButton;

/// A frame around other controls, with a caption. The access key in the caption moves the focus to `accessTarget`.
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
    /// The option buttons in the frame, in the order of their declaration.
    std::vector<OptionButton*> options_;
};

/// A control that takes the focus and has its own access key in its caption.
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

/// A push button. The default button is pressed by Enter in any control of the form except another button, the cancel button by
/// Esc.
class Button : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    Button(Form& form, std::string_view name, std::string_view caption) : CaptionedControl(form, name, -1, caption) {}
    bool isDefault = false;
    bool isCancel = false;

    // Called by the front.

    /// Runs Click if the button is enabled.
    void Press();
    void UseAccessLetter() override { Press(); }
    void UserClicked() override { Press(); }

private:
    bool KeepsEnter() const override { return true; }
    bool UseDefaultKey(KeyCode key) override;
};

/// A check box.
class CheckBox : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    CheckBox(Form& form, std::string_view name, std::string_view caption) : CaptionedControl(form, name, -1, caption) {}
    bool Value() const { return value_; }
    /// Runs Click if the value changes.
    void SetValue(bool value);

    // Called by the front.
    void Flip() { SetValue(!value_); }
    void UseAccessLetter() override { Flip(); }
    void UserClicked() override { Flip(); }

private:
    bool value_ = false;
};

/// One of several options in a frame, of which at most one is on. Tab moves to the option that is on, and the arrow keys move
/// between the options.
class OptionButton : public CaptionedControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    /// The frame must be declared before its options.
    OptionButton(Form& form, std::string_view name, int index, std::string_view caption, Frame& group);
    /// If no option of the frame is on, every one of them is a tab stop.
    bool TabStop() const override;
    bool Value() const { return value_; }
    /// Turning an option on turns the others of its frame off, then runs Click. Does nothing if the value does not change.
    void SetValue(bool value);

    // Called by the front.

    /// Chosen by mouse, Space or arrow key: takes the focus and is turned on.
    void UserChosen(FocusWay way);
    void UseAccessLetter() override { UserChosen(FocusWay::Key); }
    void UserClicked() override { UserChosen(FocusWay::Mouse); }
    /// Chooses the next option of the frame that can take the focus (the previous one if `back`), wrapping around at the end.
    void UserArrow(bool back);

private:
    Frame& group_;
    bool value_ = false;
};

}  // namespace vatro
