// SPDX-License-Identifier: MIT
//
// Controls that hold text: a single line to edit, or several lines to read.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "control.h"

namespace vatro {

/// A control that holds text with a caret: a text field, the field of a combo box, or a read-only text.
class TextControl : public Control {
public:
    using Control::Control;
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return text_; }
    /// Sets the text, ignoring the length limit, and puts the caret at the start with nothing selected. Runs Change if the text
    /// changes.
    void SetText(std::string_view text);
    /// The maximum number of characters when typing or pasting; 0 means no limit.
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int length);
    /// Whether the text is protected against keys and paste.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    /// Both values are limited to the text.
    void Select(int start, int length);
    void SelectAll() { Select(0, static_cast<int>(text_.size())); }

    /// Runs when the text changes, by key, by paste or by the program.
    std::function<void()> Change;
    /// Decides about every key that KeyPress lets through: accepts it, replaces it, or cancels it. Must have no side effects,
    /// because it is also asked about characters that nobody has typed.
    std::function<void(KeyCode& KeyAscii)> KeyFilter;
    /// Whether arrow buttons step the number in this field.
    bool Counted() const { return counted_; }

    // Called by the front.

    /// How many characters a key or a paste may still insert in place of the selection; the largest std::size_t if there is no limit.
    std::size_t Room() const;
    /// Replaces the selection by the text, as far as there is room, and puts the caret after it, as a key or a paste does. Only
    /// the first line of the text is used, because a field has one line.
    void Insert(std::string_view text);
    /// Delete the selection or, if there is none, the character before (DeleteBack) or after (DeleteForward) the caret.
    void DeleteBack();
    void DeleteForward();
    /// The user has edited the text or moved the caret in a widget that does its own editing.
    void UserEdited(std::string_view text, int selStart, int selLength);
    /// Like UserEdited, for caret and selection only.
    void UserSelected(int selStart, int selLength);

protected:
    /// Sets the text without running Change.
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

/// A text field of one line.
class TextBox : public TextControl {
public:
    using TextControl::TextControl;
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
};

/// Read-only text of several lines that the user can scroll and copy from. Lines end with CR LF. Keys scroll and do not move the
/// caret.
class TextView : public TextControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    TextView(Form& form, std::string_view name) : TextControl(form, name) { SetLocked(true); }
};

}  // namespace vatro
