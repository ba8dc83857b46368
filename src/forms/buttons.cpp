// SPDX-License-Identifier: MIT
#include "buttons.h"

#include <algorithm>

#include "forms.h"

namespace vatro {

Frame::Frame(Form& form, std::string_view name, std::string_view caption, Control* accessTarget)
    : Control(form, name), caption_(caption), accessTarget_(accessTarget) {}

char Frame::AccessLetter() const {
    return accessTarget_ != nullptr ? AccessKey(caption_) : '\0';
}

void Frame::UseAccessLetter() {
    for (Control* control : Parent().Controls()) {
        // Of a choice the one that is on.
        const auto* option = dynamic_cast<OptionButton*>(control);
        if (option == nullptr || &option->Group() != this || !option->TabStop()) continue;
        Parent().UserFocus(*control);
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

void CheckBox::SetValue(bool value) {
    if (Put(value_, value, Aspect::Value) && Click) Click();
}

std::vector<OptionButton*> OptionButton::Others() const {
    std::vector<OptionButton*> others;
    for (Control* control : Parent().Controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option != nullptr && option != this && &option->group_ == &group_) others.push_back(option);
    }
    return others;
}

bool OptionButton::TabStop() const {
    return Control::TabStop() && (value_ || std::ranges::none_of(Others(), [](const OptionButton* other) { return other->value_; }));
}

void OptionButton::SetValue(bool value) {
    if (!Put(value_, value, Aspect::Value) || !value) return;
    for (OptionButton* other : Others()) other->SetValue(false);
    if (Click) Click();
}

void OptionButton::UserChosen(FocusWay way) {
    Parent().UserFocus(*this, way);
    // A handler of the change of focus may have taken it out of use.
    if (Enabled() && Visible()) SetValue(true);
}

void OptionButton::UserArrow(bool back) {
    std::vector<OptionButton*> round;
    for (Control* control : Parent().Controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option == nullptr || &option->group_ != &group_) continue;
        if (option == this || (option->Enabled() && option->Visible())) round.push_back(option);
    }
    if (back) std::ranges::reverse(round);
    const auto here = std::ranges::find(round, this);
    OptionButton* next = here + 1 == round.end() ? round.front() : *(here + 1);
    if (next != this) next->UserChosen(FocusWay::Key);
}

}  // namespace vatro
