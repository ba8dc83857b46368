// SPDX-License-Identifier: MIT
//
// Controls that hold text: a line of it under editing, or several lines to read.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "control.h"

namespace vatro {

/// A control that holds text with a caret in it: a text field, the field of a combo box, or a text to read.
class TextControl : public Control {
public:
    using Control::Control;
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return text_; }
    /// Puts the caret at the start with nothing selected, whatever the length limit; runs Change if the text has
    /// become another one.
    void SetText(std::string_view text);
    /// At most so many characters by key and paste; 0 is no limit.
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int length);
    /// Keys and paste do not change the text.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    /// Both are cut to the text.
    void Select(int start, int length);
    void SelectAll() { Select(0, static_cast<int>(text_.size())); }

    std::function<void()> Change;
    /// Decides on every key that KeyPress leaves: lets it pass, changes it, or makes it nothing. It does nothing else, so that it may be
    /// asked about a character that nobody has pressed.
    std::function<void(KeyCode& KeyAscii)> KeyFilter;
    /// Whether arrows beside it count its number.
    bool Counted() const { return counted_; }

    // From the front.

    /// How many characters a key or a paste may still put in over the selection; never below 0.
    std::size_t Room() const;
    /// Puts text over the selection, as far as there is room, with the caret behind it, as a key or a paste does. A
    /// field is one line: what stands behind a line end is left out.
    void Insert(std::string_view text);
    /// Removes the selection, or the character before (after) the caret.
    void DeleteBack();
    void DeleteForward();
    /// The user has edited the text in a widget of its own, or moved the caret.
    void UserEdited(std::string_view text, int selStart, int selLength);
    /// As UserEdited, caret and selection alone.
    void UserSelected(int selStart, int selLength);

protected:
    /// Takes the text over without a Change.
    void TakeText(std::string_view text);

private:
    void Filter(KeyCode& key) const override {
        if (KeyFilter) KeyFilter(key);
    }
    void Replace(std::size_t start, std::size_t length, std::string_view by);

    std::string text_;
    int maxLength_ = 0;
    int selStart_ = 0;
    int selLength_ = 0;
    bool locked_ = false;
    friend class UpDown;
    bool counted_ = false;
};

/// A field of one line.
class TextBox : public TextControl {
public:
    using TextControl::TextControl;
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
};

/// Several lines of text that the user reads, scrolls and copies from, but does not edit. Lines are ended by CR LF. Keys
/// scroll and leave the caret where it is.
class TextView : public TextControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    TextView(Form& form, std::string_view name) : TextControl(form, name) { SetLocked(true); }
};

}  // namespace vatro
