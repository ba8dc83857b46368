// SPDX-License-Identifier: MIT
#include "input.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <algorithm>
#include <functional>

#include "codepage.h"
#include "deliver.h"
#include "field_characters.h"
#include "qt_text.h"

namespace vatro {

namespace {

/// A byte as a key code for KeyPress; never negative, even above 127.
KeyCode Code(char byte) {
    return static_cast<KeyCode>(static_cast<unsigned char>(byte));
}

bool IsArrow(int key) {
    return key >= Qt::Key_Left && key <= Qt::Key_Down;
}

/// How the key moves a scroll bar, or nothing.
std::optional<ScrollBar::Move> MoveOf(int key) {
    using enum ScrollBar::Move;
    switch (key) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            return StepBack;
        case Qt::Key_Right:
        case Qt::Key_Down:
            return StepOn;
        case Qt::Key_PageUp:
            return PageBack;
        case Qt::Key_PageDown:
            return PageOn;
        case Qt::Key_Home:
            return ToStart;
        case Qt::Key_End:
            return ToEnd;
        default:
            return std::nullopt;
    }
}

/// Whether Qt is only restoring the focus, so that nobody has moved it within the form.
bool OnlyReturns(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

}  // namespace

std::optional<KeyCode> CodeOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
    const bool alt = modifiers.testFlag(Qt::AltModifier);
    if (modifiers.testFlag(Qt::MetaModifier)) return std::nullopt;
    if (!ctrl && !alt) {
        if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return kEnter;
        if (event.key() == Qt::Key_Escape) return kEsc;
        if (event.key() == Qt::Key_Backspace) return kBackspace;
    }
    // On some systems, Ctrl and Alt together mean AltGr.
    if (ctrl != alt) return std::nullopt;
    const QString text = event.text();
    if (text.isEmpty() || !text.at(0).isPrint()) return std::nullopt;
    return Code(FromQt(text).front());
}

char AccessLetterOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (held != Qt::AltModifier || event.key() <= Qt::Key_Space || event.key() > 0xFF) return 0;
    return Upper(static_cast<char>(event.key()));
}

bool KeepsKey(const Form& form, QKeyEvent& shortcutOverride) {
    const char letter = AccessLetterOf(shortcutOverride);
    const auto& controls = form.Controls();
    const bool own = letter != 0 && std::any_of(controls.begin(), controls.end(), [letter](const Control* control) {
                         return control->AccessLetter() == letter && control->Enabled() && control->Visible();
                     });
    if (!own && form.Kind() == FormKind::Main) return false;
    shortcutOverride.accept();
    return true;
}

void PushSelection(const TextControl& control, QLineEdit& editor) {
    const int start = editor.hasSelectedText() ? editor.selectionStart() : editor.cursorPosition();
    const int length = editor.hasSelectedText() ? editor.selectionLength() : 0;
    if (start == control.SelStart() && length == control.SelLength()) return;
    const QSignalBlocker quiet(editor);
    if (control.SelLength() > 0)
        editor.setSelection(control.SelStart(), control.SelLength());
    else
        editor.setCursorPosition(control.SelStart());
}

Input::Input(Control& control, QWidget& widget, QLineEdit* editor, const InputSurroundings& surroundings)
    : QObject(&widget), control_(&control), surroundings_(surroundings), widget_(&widget), editor_(editor) {
    widget.installEventFilter(this);
    if (editor != nullptr && editor != &widget) editor->installEventFilter(this);
}

bool Input::eventFilter(QObject* watched, QEvent* event) {
    if (control_ == nullptr) return false;
    if (watched == editor_ && TakeForeignText(*event)) return true;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            return watched == widget_ && KeepsKey(control_->Parent(), static_cast<QKeyEvent&>(*event));
        case QEvent::KeyPress:
            return watched == widget_ && TakeKeyEvent(static_cast<QKeyEvent&>(*event));
        case QEvent::InputMethod:
            return watched == widget_ && TakeInputMethod(static_cast<QInputMethodEvent&>(*event));
        case QEvent::FocusIn:
            if (watched != widget_) return false;
            TakeFocus(static_cast<QFocusEvent&>(*event));
            return true;
        case QEvent::Wheel:
            // Ignore the wheel over a combo box: it would choose an item without a click.
            return editor_ != nullptr && editor_ != widget_;
        case QEvent::MouseButtonPress:
            TakeEarlyClick();
            return TakeMouse(*watched, *event);
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return TakeMouse(*watched, *event);
        default:
            return false;
    }
}

bool Input::TakeKeyEvent(QKeyEvent& event) {
    Form& form = control_->Parent();
    const bool plain = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == Qt::NoModifier;
    if (plain && (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)) {
        const bool back = event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
        Deliver([&] {
            if (!form.Reachable()) return;
            form.UserTab(back);
            auto* text = As<TextControl>(form.ActiveControl());
            if (text != nullptr && surroundings_.selectsOnTab()) text->SelectAll();
        });
        return true;
    }
    if (const char letter = AccessLetterOf(event); letter != 0) {
        bool used = false;
        Deliver([&] { used = form.Reachable() && form.UserAccessKey(letter); });
        // Keep an unused letter away from a text field, which would insert it without asking the key filter.
        return used || editor_ != nullptr;
    }
    if (editor_ != nullptr && event.modifiers().testFlag(Qt::MetaModifier) && !event.text().isEmpty()) return true;
    if (editor_ != nullptr && event.matches(QKeySequence::Paste)) {
        Paste(QGuiApplication::clipboard()->text());
        return true;
    }
    const std::optional<KeyCode> key = CodeOf(event);
    if (key) return !TakeKey(*key);
    if (plain && TakeMove(event.key())) return true;
    // Qt moves between buttons with the arrow keys, but in a form only Tab does that.
    const bool own = As<ListBox>(control_) != nullptr || As<TextView>(control_) != nullptr;
    return IsArrow(event.key()) && editor_ == nullptr && !own;
}

bool Input::TakeMove(int key) {
    std::function<void()> taken;
    ByKind(
        *control_,
        [&](OptionButton& option) {
            if (IsArrow(key)) taken = [&option, back = key == Qt::Key_Left || key == Qt::Key_Up] { option.UserArrow(back); };
        },
        [&](ScrollBar& bar) {
            if (const auto move = MoveOf(key)) taken = [&bar, move] { bar.UserMoved(*move); };
        },
        [](Control&) {});
    if (!taken) return false;
    Deliver([&] {
        if (control_->Parent().Reachable() && control_->Enabled()) taken();
    });
    return true;
}

bool Input::TakeKey(KeyCode key) {
    bool wanted = false;
    const QPointer<Input> self(this);
    Deliver([&] {
        Form& form = control_->Parent();
        if (!form.Reachable()) return;
        if ((key == kEnter || key == kEsc) && form.UserDefaultKey(key)) return;
        const bool character = editor_ != nullptr && key > kSpace;
        KeyCode taken = control_->PressKey(key);
        if (self != nullptr && control_ != nullptr && Text() != nullptr && surroundings_.filtersPaste())
            taken = CharacterInto(*Text(), taken);
        if (self == nullptr || control_ == nullptr) return;
        const bool kept = taken != kNoKey && (editor_ == nullptr || Edit(taken));
        if (character && !kept && widget_ != nullptr && form.ActiveControl() == control_) surroundings_.refused(*widget_);
        if (!kept || editor_ != nullptr) return;
        ByKind(
            *control_,
            [&](Button& button) {
                if (taken == kEnter) button.Press();
                wanted = taken == kSpace;
            },
            [&](OptionButton& option) {
                if (taken == kSpace) option.UserChosen(FocusWay::Key);
            },
            [&](CheckBox&) { wanted = taken == kSpace; }, [](Control&) {});
    });
    return wanted;
}

bool Input::Edit(KeyCode key) {
    TextControl& text = *Text();
    if (text.Locked() || !text.Enabled()) return false;
    if (key == kBackspace) {
        editor_->backspace();
    } else if (key >= kSpace) {
        if (text.Room() <= 0) return false;
        const char byte = static_cast<char>(key);
        editor_->insert(ToQt({&byte, 1}));
    }
    return true;
}

void Input::Paste(const QString& text) {
    const std::string line = PastedText(text);
    Deliver([&] {
        if (control_ == nullptr) return;
        if (surroundings_.filtersPaste()) {
            if (!PasteInto(*Text(), line)) surroundings_.refused(*widget_);
        } else {
            Text()->Insert(line);
        }
    });
}

bool Input::TakeForeignText(QEvent& event) {
    if (Text() == nullptr || !surroundings_.filtersPaste()) return false;
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event.type() == QEvent::MouseButtonRelease) {
        // The press of the middle button has already placed the caret.
        if (static_cast<QMouseEvent&>(event).button() != Qt::MiddleButton || !clipboard.supportsSelection()) return false;
        editor_->deselect();
        Paste(clipboard.text(QClipboard::Selection));
        return true;
    }
    if (event.type() == QEvent::Drop) {
        auto& drop = static_cast<QDropEvent&>(event);
        // Moving text within the same field brings in nothing new.
        if (drop.source() == editor_ || !drop.mimeData()->hasText()) return false;
        editor_->setCursorPosition(editor_->cursorPositionAt(drop.position().toPoint()));
        Deliver([&] { Text()->UserSelected(editor_->cursorPosition(), 0); });
        Paste(drop.mimeData()->text());
        drop.acceptProposedAction();
        return true;
    }
    if (event.type() == QEvent::ContextMenu) {
        OpenContextMenu(static_cast<QContextMenuEvent&>(event).globalPos());
        return true;
    }
    return false;
}

void Input::OpenContextMenu(const QPoint& at) {
    QMenu* menu = editor_->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Only newer versions of Qt give this entry a name; in older ones, recognise it by its text, which is followed by its shortcut.
    const QString paste = QLineEdit::tr("&Paste");
    for (QAction* action : menu->actions()) {
        if (action->objectName() != QStringLiteral("edit-paste") && action->text().section(u'\t', 0, 0) != paste) continue;
        QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
        QObject::connect(action, &QAction::triggered, this, [this] { Paste(QGuiApplication::clipboard()->text()); });
    }
    menu->popup(at);
}

bool Input::TakeInputMethod(QInputMethodEvent& event) {
    if (event.commitString().isEmpty() || event.replacementLength() > 0) return false;
    const QPointer<Input> self(this);
    const QPointer<QWidget> widget(widget_);
    const std::string commit = FromQt(event.commitString());
    const QString& preedit = event.preeditString();
    const QList<QInputMethodEvent::Attribute>& attributes = event.attributes();
    // Let the widget end the composition before the characters come in as keys.
    QInputMethodEvent rest(preedit, attributes);
    static_cast<QObject*>(widget)->event(&rest);
    for (const char byte : commit)
        if (self != nullptr && control_ != nullptr) TakeKey(Code(byte));
    return true;
}

void Input::TakeFocus(QFocusEvent& event) {
    Control* const control = control_;
    static_cast<QObject*>(widget_)->event(&event);
    if (control_ == nullptr) return;
    Form& form = control->Parent();
    const QPointer<Input> self(this);
    if (form.ActiveControl() != control) {
        if (form.ActiveControl() != nullptr && OnlyReturns(event.reason())) {
            surroundings_.followFocusSoon();
            return;
        }
        Deliver([&] {
            const bool mouse = event.reason() == Qt::MouseFocusReason;
            if (form.Reachable()) form.UserFocus(*control, mouse ? FocusWay::Mouse : FocusWay::Key);
        });
        if (self == nullptr || control_ == nullptr) return;
        if (form.ActiveControl() != control) {
            surroundings_.followFocusSoon();
            return;
        }
    }
    if (TextControl* text = Text(); text != nullptr && editor_ != nullptr) {
        if (event.reason() == Qt::MouseFocusReason) KeepSelection();
        PushSelection(*text, *editor_);
    }
}

void Input::TakeEarlyClick() {
    Form& form = control_->Parent();
    if (QApplication::activeWindow() == widget_->window() || form.ActiveControl() == control_ || !control_->TakesFocus()) return;
    Deliver([&] {
        if (form.Reachable()) form.UserFocus(*control_, FocusWay::Mouse);
    });
    KeepSelection();
}

void Input::KeepSelection() {
    const TextControl* text = control_ != nullptr ? Text() : nullptr;
    keepSelection_ = text != nullptr && text->SelLength() > 0;
}

bool Input::TakeMouse(QObject& watched, const QEvent& event) {
    if (&watched != editor_ || !keepSelection_) return false;
    if (event.type() == QEvent::MouseButtonRelease) keepSelection_ = false;
    return true;
}

}  // namespace vatro
