// SPDX-License-Identifier: MIT
//
// The interface through which a scenario's events reach the program. The player knows only this. The in-memory front passes the
// events straight to the controls; the window front produces real key and mouse events on real widgets.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "forms.h"
#include "front.h"
#include "platform.h"

namespace vatro {

/// A key as a scenario names it: "Enter", "F5", "Ctrl+N", "Alt+C", or a single character.
struct KeyStroke {
    /// One of "Enter" "Esc" "Space" "Tab" "Backspace" "Delete" "Home" "End" "Left" "Right" "Up" "Down" "PageUp" "PageDown" "F1" to
    /// "F12"; empty for a character key.
    std::string name;
    /// The character of a character key, in the code page and with its case as typed.
    char character = 0;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// Thrown for an event that the front cannot deliver; the scenario ends with an error.
class CannotDeliver : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A front as the player sees it. The player has already checked that the form is reachable and the control enabled.
class Driver {
public:
    virtual ~Driver() = default;
    /// The front to install for the program.
    virtual Front& ProgramFront() = 0;

    /// Presses and releases a key on the active form.
    virtual void Press(const KeyStroke& key) = 0;
    /// Pastes a text, in the code page, into the text field that has the focus.
    virtual void Paste(std::string_view text) = 0;
    /// Clicks into the control without choosing anything in it. In a text field, the caret goes to the end and nothing is selected.
    virtual void Focus(Control& control) = 0;
    /// Clicks the control, or the surface of the form.
    virtual void Click(Control& control) = 0;
    virtual void ClickForm(Form& form) = 0;
    /// Chooses a row of a list or combo box with the mouse.
    virtual void Pick(Control& control, int row) = 0;
    /// Double-clicks a row.
    virtual void DoubleClick(ListBox& list, int row) = 0;
    /// Presses the upper or lower arrow once. A front without arrows fails.
    virtual void Spin(UpDown& /*arrows*/, bool /*up*/) { throw CannotDeliver("the front has no arrows"); }
    /// Moves the slider to this value with the mouse. A front without scroll bars fails.
    virtual void Scroll(ScrollBar& /*bar*/, int /*value*/) { throw CannotDeliver("the front has no scroll bars"); }
    /// Chooses a menu entry through its menus.
    virtual void Choose(MenuItem& item) = 0;
    /// Presses a toolbar button, given its index.
    virtual void PressTool(Toolbar& toolbar, int index) = 0;
    /// Uses the window's frame: closes, minimises, restores or moves it. Measures are in twips.
    virtual void Close(Form& form) = 0;
    virtual void Minimise(Form& form) = 0;
    virtual void Restore(Form& form) = 0;
    virtual void Place(Form& form, int left, int top, int width, int height) = 0;

    /// Shows a message box, which stays open until AnswerBox while the player waits.
    virtual void OpenBox(const MessageBox& box) = 0;
    /// Presses a button of the message box in front.
    virtual void AnswerBox(Answer answer) = 0;
    /// Closes the box in front without an answer, because the program ends at once.
    virtual void DropBox() = 0;

    /// Waits until the front has finished processing an event.
    virtual void Settle() = 0;
    /// Describes how the control or form on the screen differs from what the program holds; empty if it does not.
    virtual std::string Mismatch(const Control& control) = 0;
    virtual std::string Mismatch(const Form& form) = 0;
    /// Saves a picture of the visible windows as PNG. Does nothing in the in-memory front.
    virtual void Shot(const std::string& file) = 0;

    /// Set by the player and called by the front's RunModal: continues the scenario until `done` returns true or the program ends.
    std::function<void(const std::function<bool()>& done)> playUntil;
};

}  // namespace vatro
