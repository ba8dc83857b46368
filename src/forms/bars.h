// SPDX-License-Identifier: MIT
//
// Menu, toolbar and status bar of a form.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "control.h"

namespace vatro {

/// Buttons in groups, of which at most one is pressed in each. Buttons are known by their index, from 1.
class Toolbar : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    struct ToolButton {
        int index = 0;
        std::string caption;
        /// Buttons of one group release each other; group 0 is a separator.
        int group = 0;
        std::string toolTip;
        bool visible = true;
        bool pressed = false;
    };
    Toolbar(Form& form, std::string_view name, std::vector<ToolButton> buttons) : Control(form, name), buttons_(std::move(buttons)) {}
    const std::vector<ToolButton>& ToolButtons() const { return buttons_; }
    /// Shows the button of this index as pressed and the others of its group as released. No such button: nothing.
    void Press(int index);

    /// Runs with the button shown as pressed.
    std::function<void(int index)> ButtonClick;

    // From the front.
    void UserPressed(int index);

private:
    std::vector<ToolButton> buttons_;
};

/// Panels of text at the foot of a form, numbered from 1.
class StatusBar : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    StatusBar(Form& form, std::string_view name, std::vector<std::string> panels) : Control(form, name), panels_(std::move(panels)) {}
    const std::vector<std::string>& Panels() const { return panels_; }
    /// The panel must exist, here and below.
    const std::string& Panel(std::size_t number) const { return panels_.at(number - 1); }
    void SetPanel(std::size_t number, std::string_view text);

private:
    std::vector<std::string> panels_;
};

/// What a menu entry has beside its caption.
struct MenuLook {
    /// As "Ctrl+F1"; empty for none.
    std::string_view shortcut = {};
    bool hidden = false;
    bool separator = false;
};

/// An entry of the menu bar or of a menu. Entries form a tree that the form describes.
class MenuItem : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    MenuItem(Form& form, MenuItem* menu, std::string_view name, std::string_view caption, int index = -1, MenuLook look = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const std::string& Shortcut() const { return shortcut_; }
    bool Separator() const { return separator_; }
    bool Ticked() const { return ticked_; }
    void SetTicked(bool ticked);
    /// Its menu, or nothing for an entry of the menu bar.
    MenuItem* Menu() const { return menu_; }
    const std::vector<MenuItem*>& Entries() const { return entries_; }
    /// Whether it can be chosen: enabled, shown, and all menus above it too.
    bool Choosable() const;

    // From the front.

    /// Runs Click if the entry can be chosen.
    void Choose();

private:
    MenuItem* menu_;
    std::vector<MenuItem*> entries_;
    std::string caption_;
    std::string shortcut_;
    bool separator_;
    bool ticked_ = false;
};

}  // namespace vatro
