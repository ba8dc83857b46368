// SPDX-License-Identifier: MIT
#include "buttons.h"

#include <algorithm>

#include "form.h"

namespace vatro {

Frame::Frame(Form& form, std::string_view name, std::string_view caption, Control* accessTarget)
    : Control(form, name), caption_(caption), accessTarget_(accessTarget) {}

char Frame::AccessLetter() const {
    return accessTarget_ != nullptr ? AccessKey(caption_) : '\0';
}

void Frame::UseAccessLetter() {
    for (OptionButton* option : options_) {
        // Skips the options that are off while another one is on.
        if (!option->TabStop()) continue;
        Parent().UserFocus(*option);
        return;
    }
    Parent().UserFocus(*accessTarget_);
}

char CaptionedControl::AccessLetter() const {
    return AccessKey(caption_);
}

void Button::Press() {
    if (Enabled() && Click) Click();
}

bool Button::UseDefaultKey(KeyCode key) {
    if (!Enabled() || !Visible()) return false;
    if (!(key == kEnter && isDefault) && !(key == kEsc && isCancel)) return false;
    Press();
    return true;
}

void CheckBox::SetValue(bool value) {
    if (Put(value_, value, Aspect::Value) && Click) Click();
}

OptionButton::OptionButton(Form& form, std::string_view name, int index, std::string_view caption, Frame& group)
    : CaptionedControl(form, name, index, caption), group_(group) {
    group.options_.push_back(this);
}

bool OptionButton::TabStop() const {
    return Control::TabStop() && (value_ || std::ranges::none_of(group_.options_, [](const OptionButton* other) { return other->value_; }));
}

void OptionButton::SetValue(bool value) {
    if (!Put(value_, value, Aspect::Value) || !value) return;
    for (OptionButton* other : group_.options_)
        if (other != this) other->SetValue(false);
    if (Click) Click();
}

void OptionButton::UserChosen(FocusWay way) {
    Parent().UserFocus(*this, way);
    // A focus handler may have disabled or hidden the control.
    if (Enabled() && Visible()) SetValue(true);
}

void OptionButton::UserArrow(bool back) {
    std::vector<OptionButton*> round;
    for (OptionButton* option : group_.options_)
        if (option == this || (option->Enabled() && option->Visible())) round.push_back(option);
    if (back) std::ranges::reverse(round);
    const auto here = std::ranges::find(round, this);
    OptionButton* next = here + 1 == round.end() ? round.front() : *(here + 1);
    if (next != this) next->UserChosen(FocusWay::Key);
}

}  // namespace vatro
