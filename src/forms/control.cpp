// SPDX-License-Identifier: MIT
#include "control.h"

#include "codepage.h"
#include "errors.h"
#include "form.h"

namespace vatro {

char AccessKey(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return Upper(caption[i + 1]);
        ++i;
    }
    return 0;
}

Control::Control(Form& form, std::string_view name, int index) : form_(form), name_(name), index_(index) {
    form.Enrol(*this);
}

std::string Control::FullName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::SetEnabled(bool enabled) {
    Put(enabled_, enabled, Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    Put(visible_, visible, Aspect::Visible);
}

void Control::SetToolTip(std::string_view text) {
    toolTip_ = text;
    Tell(Aspect::ToolTip);
}

void Control::SetFocus() {
    if (!form_.CanFocus(*this)) throw RunTimeError(Failure::InvalidCall);
    form_.SetFocus();
    form_.MoveFocus(*this);
}

bool Control::HasFocus() const {
    return form_.ActiveControl() == this;
}

KeyCode Control::PressKey(KeyCode key) {
    if (!enabled_) return kNoKey;
    form_.Form_KeyPress(key);
    if (key != kNoKey && KeyPress) KeyPress(key);
    if (key != kNoKey) Filter(key);
    return key;
}

}  // namespace vatro
