// SPDX-License-Identifier: MIT
//
// Keys, input methods, paste and focus of one control's widget, on their way into the control.
//
// A key that gives a character, and Enter, Esc and Backspace, goes through the control's KeyPress before the widget's
// own editing takes what has become of it. Tab walks through the form's controls. A focus that Qt moves by itself, to
// a window or back from a menu or popup, is no event of the form.
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

/// What the inputs of a window ask of its front.
struct InputSurroundings {
    /// Gives the focus back to the form's active control when the present event of Qt is over.
    std::function<void()> followFocusSoon;
    /// Whether only what keys can bring gets into a field.
    std::function<bool()> filtersPaste;
};

class Input : public QObject {
    Q_OBJECT

public:
    /// `editor` is the line under editing: the widget itself, the one in a combo box, or nothing. `surroundings` must live until
    /// Release.
    Input(Control& control, QWidget& widget, QLineEdit* editor, const InputSurroundings& surroundings);
    /// The control is going away.
    void Release() { control_ = nullptr; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakeKeyEvent(QKeyEvent& event);
    bool TakeInputMethod(QInputMethodEvent& event);
    void TakeFocus(QFocusEvent& event);
    /// What was selected when the focus came is not for the click that brought it to undo.
    void KeepSelection();
    /// A window that is not active yet takes a click without its focus, and later tells only that the focus is back.
    void TakeEarlyClick();
    bool TakeMouse(QObject& watched, const QEvent& event);
    /// A key that gives no character: whether the control has taken it.
    bool TakeMove(int key);
    /// Runs the key through form and control; true if the widget's own handling of it is still wanted.
    bool TakeKey(KeyCode key);
    void Edit(KeyCode key);
    /// Puts the text over the selection, as the user has brought it in from outside.
    void Paste(const QString& text);
    /// The ways to paste that Qt would go by itself: middle button, drop, context menu. True if the event is done with.
    bool TakeForeignText(QEvent& event);
    void OpenContextMenu(const QPoint& at);
    TextControl* Text() const { return As<TextControl>(control_); }

    Control* control_;
    const InputSurroundings& surroundings_;
    QPointer<QWidget> widget_;
    QPointer<QLineEdit> editor_;
    /// The click that brought the focus must not take away what the control's handler has selected.
    bool keepSelection_ = false;
};

/// The code of a key press as KeyPress gets it; nothing for a key that gives no character.
std::optional<KeyCode> CodeOf(const QKeyEvent& event);

/// The letter that is pressed with Alt, upper case, or 0.
char AccessLetterOf(const QKeyEvent& event);
/// Whether the form gets the key before the menu's shortcuts are looked up, which then take no notice of it: an access
/// key of its own, and every key of a window without a menu, for which Qt would ask the main window's.
bool KeepsKey(const Form& form, QKeyEvent& shortcutOverride);

/// Puts the caret and the selection of the control into its widget, unless they are there.
void PushSelection(const TextControl& control, QLineEdit& editor);

}  // namespace vatro
