// SPDX-License-Identifier: MIT
//
// How a scenario's events reach the program. The player knows only this; the in-memory front delivers them to the
// controls themselves, the window front to real widgets as real key and mouse events.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "forms.h"
#include "front.h"
#include "platform.h"

namespace vatro {

/// A key as a scenario names it: "Enter", "F5", "Ctrl+N", "Alt+C", or one character.
struct KeyStroke {
    /// "Enter" "Esc" "Space" "Tab" "Backspace" "Delete" "Home" "End" "Left" "Right" "Up" "Down" "PageUp" "PageDown"
    /// "F1" to "F12"; empty for a character key.
    std::string name;
    /// The character of a character key, in the code page, as typed (with its case).
    char character = 0;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// An event that the front cannot deliver; the scenario ends with an error.
class CannotDeliver : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One front under the player. The player has checked that the form can be reached and the control is enabled.
class Driver {
public:
    virtual ~Driver() = default;
    /// The front that the program gets.
    virtual Front& ProgramFront() = 0;

    virtual void Press(const KeyStroke& key) = 0;
    virtual void Paste(std::string_view text) = 0;
    /// A click into the control that chooses nothing in it; the caret of a text field at the end, nothing selected.
    virtual void Focus(Control& control) = 0;
    virtual void Click(Control& control) = 0;
    virtual void ClickForm(Form& form) = 0;
    /// Chooses the row of a list or combo box with the mouse.
    virtual void Pick(Control& control, int row) = 0;
    virtual void DoubleClick(ListBox& list, int row) = 0;
    /// One press on the upper or the lower arrow; a front without arrows refuses it.
    virtual void Spin(UpDown& /*arrows*/, bool /*up*/) { throw CannotDeliver("the front has no arrows"); }
    /// Moves the slide to this value with the mouse; a front without scroll bars refuses it.
    virtual void Scroll(ScrollBar& /*bar*/, int /*value*/) { throw CannotDeliver("the front has no scroll bars"); }
    virtual void Choose(MenuItem& item) = 0;
    virtual void PressTool(Toolbar& toolbar, int index) = 0;
    virtual void Close(Form& form) = 0;
    virtual void Minimise(Form& form) = 0;
    virtual void Restore(Form& form) = 0;
    virtual void Place(Form& form, int left, int top, int width, int height) = 0;

    /// A message box is open until Answer; the player waits meanwhile.
    virtual void OpenBox(const MessageBox& box) = 0;
    virtual void AnswerBox(Answer answer) = 0;
    /// The program goes away at once with whatever is open.
    virtual void DropBox() = 0;

    /// Lets the front come to rest after an event.
    virtual void Settle() = 0;
    /// What the user sees of the control or form that differs from what the program holds; empty if nothing does.
    virtual std::string Mismatch(const Control& control) = 0;
    virtual std::string Mismatch(const Form& form) = 0;
    /// A picture of the visible windows, as PNG; the in-memory front does nothing.
    virtual void Shot(const std::string& file) = 0;

    /// Set by the player: plays on until `done` or until the program ends. Called by the front's RunModal.
    std::function<void(const std::function<bool()>& done)> playUntil;
};

}  // namespace vatro
