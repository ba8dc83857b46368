// SPDX-License-Identifier: MIT
//
// Bindings of text fields, combo boxes and read-only texts.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "bind_common.h"
#include "binder.h"
#include "bindings.h"
#include "deliver.h"
#include "forms.h"
#include "input.h"
#include "qt_text.h"

namespace vatro {

namespace {

constexpr int kNoLimit = 32767;

/// The limit applies to the user only; the program may have set a longer text, so raise the widget's limit to its length.
void PushLimit(const TextControl& control, QLineEdit& editor) {
    const int length = static_cast<int>(control.Text().size());
    const int limit = control.MaxLength() > 0 ? qMax(control.MaxLength(), length) : kNoLimit;
    if (editor.maxLength() == limit) return;
    // setMaxLength sets the text again and moves the caret to the end.
    const QSignalBlocker quiet(editor);
    editor.setMaxLength(limit);
    PushSelection(control, editor);
}

void PushText(const TextControl& control, QLineEdit& editor) {
    const QString text = ToQt(control.Text());
    if (editor.text() != text) {
        {
            const QSignalBlocker quiet(editor);
            editor.setMaxLength(kNoLimit);
            editor.setText(text);
            PushSelection(control, editor);
        }
        // Only the caret's movements are kept from the control; others may follow the text.
        Q_EMIT editor.textChanged(text);
    }
    // If the text came from the editor, leave the caret alone; the selection is updated separately.
    PushLimit(control, editor);
}

void FollowEditor(const TextControl& control, QLineEdit& editor, Aspect aspect) {
    if (aspect == Aspect::Text) PushText(control, editor);
    if (aspect == Aspect::Selection) PushSelection(control, editor);
    if (aspect == Aspect::MaxLength) PushLimit(control, editor);
    if (aspect == Aspect::Locked) editor.setReadOnly(control.Locked());
}

/// Passes the user's edits (by key, paste, drop or undo) and caret movements to the control.
void ConnectEditor(TextControl& control, QLineEdit& editor, QObject& scope) {
    const auto selection = [&editor] {
        return editor.hasSelectedText() ? std::pair(editor.selectionStart(), static_cast<int>(editor.selectionLength()))
                                        : std::pair(editor.cursorPosition(), 0);
    };
    QObject::connect(&editor, &QLineEdit::textEdited, &scope, [&control, selection](const QString& text) {
        const auto [start, length] = selection();
        Deliver([&, start = start, length = length] { control.UserEdited(FromQt(text), start, length); });
    });
    const auto moved = [&control, &editor, selection] {
        // A field without the focus shows no selection, but the control keeps it.
        const QWidget* focused = editor.window()->focusWidget();
        if (focused == nullptr || (focused != &editor && focused != editor.focusProxy())) return;
        const auto [start, length] = selection();
        if (start == control.SelStart() && length == control.SelLength()) return;
        Deliver([&, start = start, length = length] { control.UserSelected(start, length); });
    };
    QObject::connect(&editor, &QLineEdit::cursorPositionChanged, &scope, moved);
    QObject::connect(&editor, &QLineEdit::selectionChanged, &scope, moved);
}

void PushItems(const ComboBox& control, QComboBox& widget) {
    const QSignalBlocker quiet(widget);
    const QSignalBlocker quietEditor(*widget.lineEdit());
    if (control.ListCount() == widget.count() + 1 && widget.count() > 0) {
        widget.addItem(ToQt(control.Items().back()));
    } else {
        widget.clear();
        for (const std::string& item : control.Items()) widget.addItem(ToQt(item));
    }
    widget.setCurrentIndex(control.ListIndex());
    PushText(control, *widget.lineEdit());
    PushSelection(control, *widget.lineEdit());
}

}  // namespace

void Bind(TextBox& control, QLineEdit& widget, Bindings& bindings) {
    PushState(control, widget);
    PushText(control, widget);
    widget.setReadOnly(control.Locked());
    bindings.AddInput(control, widget, &widget);
    ConnectEditor(control, widget, bindings.Scope());
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        FollowEditor(control, widget, aspect);
    };
}

namespace {

/// Converts a position in the program's text, where a line end is two characters, to Qt's document, where it is one.
int InDocument(std::string_view text, int at) {
    return at - static_cast<int>(std::count(text.begin(), text.begin() + at, '\n'));
}

int InText(std::string_view text, int at) {
    int here = 0;
    for (; at > 0; --at) here += text[static_cast<std::size_t>(here)] == '\r' ? 2 : 1;
    return here;
}

void PushSelection(const TextView& control, QPlainTextEdit& widget) {
    const QSignalBlocker quiet(widget);
    QTextCursor cursor = widget.textCursor();
    cursor.setPosition(InDocument(control.Text(), control.SelStart()));
    cursor.setPosition(InDocument(control.Text(), control.SelStart() + control.SelLength()), QTextCursor::KeepAnchor);
    widget.setTextCursor(cursor);
}

void PushText(const TextView& control, QPlainTextEdit& widget) {
    const QSignalBlocker quiet(widget);
    widget.setPlainText(ToQt(control.Text()));
}

}  // namespace

void Bind(TextView& control, QPlainTextEdit& widget, Bindings& bindings) {
    // Keys only scroll; the mouse selects text for copying.
    widget.setTextInteractionFlags(Qt::TextSelectableByMouse);
    widget.setTabChangesFocus(true);
    PushState(control, widget);
    PushText(control, widget);
    bindings.AddInput(control, widget, nullptr);
    const auto moved = [&control, &widget] {
        const QTextCursor cursor = widget.textCursor();
        const int start = InText(control.Text(), cursor.selectionStart());
        const int length = InText(control.Text(), cursor.selectionEnd()) - start;
        if (start == control.SelStart() && length == control.SelLength()) return;
        Deliver([&] { control.UserSelected(start, length); });
    };
    QObject::connect(&widget, &QPlainTextEdit::cursorPositionChanged, &bindings.Scope(), moved);
    QObject::connect(&widget, &QPlainTextEdit::selectionChanged, &bindings.Scope(), moved);
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Text) PushText(control, widget);
        const QTextCursor cursor = widget.textCursor();
        const bool same = cursor.selectionStart() == InDocument(control.Text(), control.SelStart()) &&
                          cursor.selectionEnd() == InDocument(control.Text(), control.SelStart() + control.SelLength());
        if (!same && (aspect == Aspect::Text || aspect == Aspect::Selection)) PushSelection(control, widget);
    };
}

void Bind(ComboBox& control, QComboBox& widget, Bindings& bindings) {
    widget.setEditable(true);
    widget.setInsertPolicy(QComboBox::NoInsert);
    widget.setCompleter(nullptr);
    PushState(control, widget);
    PushItems(control, widget);
    QLineEdit& editor = *widget.lineEdit();
    editor.setReadOnly(control.Style() == ComboStyle::DropDownList);
    bindings.AddInput(control, widget, &editor);
    ConnectEditor(control, editor, bindings.Scope());
    // Prevent Qt from choosing the item that matches the typed text when the field is left.
    QObject::disconnect(&editor, &QLineEdit::editingFinished, &widget, nullptr);
    QObject::connect(&widget, &QComboBox::activated, &bindings.Scope(), [&control](int row) {
        Deliver([&] {
            if (control.Parent().Reachable()) control.UserPicked(row);
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Items || aspect == Aspect::ListIndex)
            PushItems(control, widget);
        else
            FollowEditor(control, *widget.lineEdit(), aspect);
    };
}

}  // namespace vatro
