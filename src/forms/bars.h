// SPDX-License-Identifier: MIT
//
// The menu, toolbar and status bar of a form.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "control.h"

namespace vatro {

/// Buttons in groups; at most one button of a group is pressed. Buttons are identified by their index, from 1.
class Toolbar : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    /// A button of the bar, or a separator.
    struct ToolButton {
        int index = 0;
        std::string caption;
        /// Pressing a button releases the others of its group. Group 0 marks a separator.
        int group = 0;
        std::string toolTip;
        bool visible = true;
        bool pressed = false;
    };
    Toolbar(Form& form, std::string_view name, std::vector<ToolButton> buttons) : Control(form, name), buttons_(std::move(buttons)) {}
    const std::vector<ToolButton>& ToolButtons() const { return buttons_; }
    /// Shows the button with this index as pressed and the others of its group as released. Does nothing if there is no such
    /// button.
    void Press(int index);

    /// Runs after the button is shown as pressed.
    std::function<void(int index)> ButtonClick;

    // Called by the front.
    /// The user has pressed a button: shows it as pressed and runs ButtonClick. Does nothing if the toolbar is disabled.
    void UserPressed(int index);

private:
    std::vector<ToolButton> buttons_;
};

/// What the text of a panel is about. A front may show it beside the text; no rule depends on it.
enum class PanelMark { None, NewCountry, WorkedCountry, Unknown, Station, Duplicate };

/// Text panels along the bottom of a form, numbered from 1.
class StatusBar : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    StatusBar(Form& form, std::string_view name, std::vector<std::string> panels)
        : Control(form, name), panels_(std::move(panels)), marks_(panels_.size()) {}
    const std::vector<std::string>& Panels() const { return panels_; }
    /// The text of a panel. The panel must exist.
    const std::string& Panel(std::size_t number) const { return panels_.at(number - 1); }
    PanelMark Mark(std::size_t number) const { return marks_.at(number - 1); }
    /// Shows a text in a panel, which must exist.
    void SetPanel(std::size_t number, std::string_view text, PanelMark mark = PanelMark::None);

private:
    std::vector<std::string> panels_;
    std::vector<PanelMark> marks_;
};

/// Properties of a menu entry other than its caption.
struct MenuLook {
    /// For example "Ctrl+F1"; empty if there is none.
    std::string_view shortcut = {};
    bool hidden = false;
    bool separator = false;
};

/// An entry of the menu bar or of a menu. The entries of a form make up a tree.
class MenuItem : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    /// `menu` is the entry whose menu contains this one, or null for an entry of the menu bar.
    MenuItem(Form& form, MenuItem* menu, std::string_view name, std::string_view caption, int index = -1, MenuLook look = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const std::string& Shortcut() const { return shortcut_; }
    bool Separator() const { return separator_; }
    bool Ticked() const { return ticked_; }
    void SetTicked(bool ticked);
    /// The menu that contains this entry, or null for an entry of the menu bar.
    MenuItem* Menu() const { return menu_; }
    /// The entries of its menu, in order; empty if it has no menu.
    const std::vector<MenuItem*>& Entries() const { return entries_; }
    /// Whether the entry can be chosen: it and all menus above it are enabled and visible.
    bool Choosable() const;

    // Called by the front.

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
