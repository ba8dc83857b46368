// SPDX-License-Identifier: MIT
//
// Passes keys, input methods, paste and focus of a widget to its control.
//
// A key that produces a character, and Enter, Esc and Backspace, goes through the control's KeyPress first; the widget then edits with
// the resulting key. Tab moves through the form's controls. When Qt itself moves the focus, to a window or back from a menu or popup,
// this is not an event of the form.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <functional>
#include <optional>

#include "by_kind.h"
#include "form.h"

class QKeyEvent;
class QInputMethodEvent;
class QFocusEvent;

namespace vatro {

/// What the inputs of a window need from its front.
struct InputSurroundings {
    /// Returns the focus to the form's active control once Qt's current event is over.
    std::function<void()> followFocusSoon;
    /// Whether pasted text goes through the field's key filter.
    std::function<bool()> filtersPaste;
    /// Whether Tab selects the text of the field that it enters.
    std::function<bool()> selectsOnTab;
    /// A field has not taken a character that the user has typed or pasted.
    std::function<void(QWidget& field)> refused;
};

class Input : public QObject {
    Q_OBJECT

public:
    /// `editor` is the line editor: the widget itself, the one inside a combo box, or null. `surroundings` must live until Release.
    Input(Control& control, QWidget& widget, QLineEdit* editor, const InputSurroundings& surroundings);
    /// To be called before the control is destroyed.
    void Release() { control_ = nullptr; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakeKeyEvent(QKeyEvent& event);
    bool TakeInputMethod(QInputMethodEvent& event);
    void TakeFocus(QFocusEvent& event);
    /// Protects a selection made when the control got the focus from the click that gave it the focus.
    void KeepSelection();
    /// Handles a click into an inactive window. Qt does not report the click as a focus change; it only reports later that the focus is
    /// back.
    void TakeEarlyClick();
    bool TakeMouse(QObject& watched, const QEvent& event);
    /// Handles a key that produces no character. Returns whether the control has used it.
    bool TakeMove(int key);
    /// Passes the key through form and control. Returns true if the widget should still handle it.
    bool TakeKey(KeyCode key);
    /// Returns false if the field cannot take this character, because it is full or cannot be changed.
    bool Edit(KeyCode key);
    /// Replaces the selection by text that the user brings in from outside.
    void Paste(const QString& text);
    /// Handles the kinds of paste that Qt would do on its own: middle button, drop and context menu. Returns true if the event has been
    /// handled.
    bool TakeForeignText(QEvent& event);
    void OpenContextMenu(const QPoint& at);
    TextControl* Text() const { return As<TextControl>(control_); }

    Control* control_;
    const InputSurroundings& surroundings_;
    QPointer<QWidget> widget_;
    QPointer<QLineEdit> editor_;
    /// Whether the click that brought the focus must leave the selection made by the control's handler.
    bool keepSelection_ = false;
};

/// The code of a key press as passed to KeyPress; nothing for a key that produces no character.
std::optional<KeyCode> CodeOf(const QKeyEvent& event);

/// The upper-case letter pressed together with Alt, or 0.
char AccessLetterOf(const QKeyEvent& event);
/// Whether the form gets the key before the menu's shortcuts are looked up, which then ignore it. This applies to the form's own access
/// keys, and to all keys of a window without a menu, because Qt would search the main window's shortcuts for them.
bool KeepsKey(const Form& form, QKeyEvent& shortcutOverride);

/// Copies the caret and selection of the control to its widget, unless they are equal.
void PushSelection(const TextControl& control, QLineEdit& editor);

}  // namespace vatro
