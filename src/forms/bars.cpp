// SPDX-License-Identifier: MIT
#include "bars.h"

#include <algorithm>

namespace vatro {

void Toolbar::Press(int index) {
    const auto it = std::find_if(buttons_.begin(), buttons_.end(), [&](const ToolButton& b) { return b.index == index; });
    if (it == buttons_.end() || it->group == 0) return;
    for (ToolButton& button : buttons_)
        if (button.group == it->group) button.pressed = button.index == index;
    Tell(Aspect::Pressed);
}

void Toolbar::UserPressed(int index) {
    if (!Enabled()) return;
    Press(index);
    if (ButtonClick) ButtonClick(index);
}

void StatusBar::SetPanel(std::size_t number, std::string_view text, PanelMark mark) {
    std::string& panel = panels_.at(number - 1);
    PanelMark& its = marks_.at(number - 1);
    if (panel == text && its == mark) return;
    panel = text;
    its = mark;
    Tell(Aspect::Panels, static_cast<int>(number));
}

MenuItem::MenuItem(Form& form, MenuItem* menu, std::string_view name, std::string_view caption, int index, MenuLook look)
    : Control(form, name, index), menu_(menu), caption_(caption), shortcut_(look.shortcut), separator_(look.separator) {
    if (menu_ != nullptr) menu_->entries_.push_back(this);
    if (look.hidden) SetVisible(false);
}

void MenuItem::SetCaption(std::string_view caption) {
    Put(caption_, caption, Aspect::Text);
}

void MenuItem::SetTicked(bool ticked) {
    Put(ticked_, ticked, Aspect::Value);
}

bool MenuItem::Choosable() const {
    for (const MenuItem* item = this; item != nullptr; item = item->menu_)
        if (!item->Enabled() || !item->Visible()) return false;
    return !separator_;
}

void MenuItem::Choose() {
    if (Choosable() && Click) Click();
}

}  // namespace vatro
