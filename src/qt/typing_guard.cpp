// SPDX-License-Identifier: MIT
#include "typing_guard.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "box_flash.h"
#include "by_kind.h"
#include "deliver.h"
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "field_characters.h"
#include "input.h"
#include "item_list.h"
#include "keyer/frmCWTX.h"
#include "printing/frmInfo.h"
#include "qt_front.h"
#include "stations/frmEDR.h"
#include "window.h"

namespace vatro {

namespace {

PressedKey Pressed(const QKeyEvent& event) {
    PressedKey key{.repeated = event.isAutoRepeat()};
    key.letter = AccessLetterOf(event);
    const std::optional<KeyCode> code = CodeOf(event);
    if (key.letter != 0)
        key.kind = KeyKind::AccessLetter;
    else if (code == kEnter)
        key.kind = KeyKind::Enter;
    else if (code == kEsc)
        key.kind = KeyKind::Esc;
    else if (code == kSpace)
        key.kind = KeyKind::Space;
    else if (code && code != kBackspace)
        key.kind = KeyKind::Character;
    return key;
}

/// Shift and similar keys only modify other keys.
bool IsModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

QWidget* WidgetOf(const QWindow& window) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->windowHandle() == &window) return top;
    return nullptr;
}

/// Whether the sending window has the focus.
bool Sending() {
    const Form* form = frmCWTX.Peek();
    return form != nullptr && form->Visible() && ActiveForm() == form && frmMain.Loaded();
}

/// Returns the focus to the sending window, because handling keys on the main form may have activated that form.
void GiveKeysBackToSending() {
    Form* form = frmCWTX.Peek();
    if (form != nullptr && form->Visible() && ModalForm() == nullptr && ActiveForm() != form) form->SetFocus();
}

}  // namespace

TypingGuard::TypingGuard(QtFront& front) : now([this] { return Moment(clock_.elapsed()); }), front_(front), marked_(front) {
    clock_.start();
    qApp->installEventFilter(this);
    // Handlers may move the focus several times before it rests.
    connect(qApp, &QApplication::focusChanged, this, [this] { QTimer::singleShot(0, this, &TypingGuard::FollowKeys); });
}

bool TypingGuard::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (const auto* window = qobject_cast<QWindow*>(watched)) return TakeKey(*window, static_cast<QKeyEvent&>(*event));
            return false;
        case QEvent::InputMethod:
            if (const auto* widget = qobject_cast<QWidget*>(watched))
                return TakeInputMethod(*widget, static_cast<QInputMethodEvent&>(*event));
            return false;
        case QEvent::Show:
            if (qobject_cast<QMessageBox*>(watched) != nullptr) box_.CameUp(now());
            return false;
        case QEvent::WindowActivate:
            // Wait until all windows have received their activation events; only then is it certain which form has the focus.
            if (frmCWTX.Loaded() && watched->isWidgetType()) QTimer::singleShot(0, this, &TypingGuard::FollowKeys);
            return false;
        case QEvent::Hide: {
            const auto* widget = qobject_cast<QWidget*>(watched);
            if (widget != nullptr && frmCWTX.Loaded() && FormOf(widget) == frmCWTX.Peek() && !event->spontaneous()) SendingOver();
            return false;
        }
        default:
            return false;
    }
}

Form* TypingGuard::FormOf(const QWidget* window) const {
    for (Form* form : LoadedForms()) {
        const FormWindow* its = front_.WindowOf(*form);
        if (its != nullptr && its->Top() == window) return form;
    }
    return nullptr;
}

bool TypingGuard::TakeKey(const QWindow& window, QKeyEvent& event) {
    PressedKey key = Pressed(event);
    const bool press = event.type() == QEvent::KeyPress;
    // Only a key from the keyboard has a scan code.
    if (const quint32 number = event.nativeScanCode(); number != 0) {
        const Moment at(event.timestamp());
        if (press)
            key.repeated = key.repeated || held_.Repeats(number, at);
        else
            held_.Released(number, at);
    }
    if (QApplication::activePopupWidget() != nullptr || IsModifier(event.key())) return false;
    QWidget* const top = WidgetOf(window);
    if (top != nullptr && !top->isVisible()) return HandOn(event, key.repeated);
    if (auto* box = qobject_cast<QMessageBox*>(top)) return press && TakeOnBox(*box, key);
    Form* const form = FormOf(top);
    if (form == nullptr) return false;
    WatchLog();
    if (form == frmInfo.Peek() && TakeBesideProgress(event, key)) return true;
    if (Sending() && (form == frmCWTX.Peek() || form == frmMain.Peek())) return TakeWhileSending(event, key);
    return press && TakeOnForm(*form, event, key);
}

bool TypingGuard::HandOn(const QKeyEvent& event, bool repeated) const {
    QWidget* next = QApplication::activeModalWidget();
    const Form* form = ActiveForm();
    if (const FormWindow* window = next == nullptr && form != nullptr ? front_.WindowOf(*form) : nullptr) next = window->Top();
    if (next == nullptr || !next->isVisible() || next->windowHandle() == nullptr) return false;
    QKeyEvent same(event.type(), event.key(), event.modifiers(), event.text(), repeated, static_cast<quint16>(event.count()));
    QApplication::sendEvent(next->windowHandle(), &same);
    return true;
}

bool TypingGuard::TakeOnBox(QMessageBox& box, const PressedKey& key) {
    const BoxKeys::Verdict verdict = box_.Press(key, now());
    if (verdict == BoxKeys::Verdict::DropAndFlash) BoxFlash::Flash(box);
    return verdict != BoxKeys::Verdict::Take;
}

bool TypingGuard::TakeWhileSending(QKeyEvent& event, const PressedKey& key) {
    if (!MorseKeys::Own(key)) {
        HandToMain(event, key);
        return true;
    }
    if (EntryKeys::Held(key)) return true;
    const Form& sender = *frmCWTX.Peek();
    const Control* active = sender.ActiveControl();
    QWidget* widget = active != nullptr ? front_.WidgetOf(*active) : nullptr;
    if (widget == nullptr) return false;
    QKeyEvent own(event.type(), event.key(), event.modifiers(), event.text());
    QApplication::sendEvent(widget, &own);
    return true;
}

bool TypingGuard::TakeBesideProgress(QKeyEvent& event, const PressedKey& key) {
    Form* main = frmMain.Peek();
    if (main == nullptr || !main->Reachable()) return false;
    if (ActiveForm() != main) {
        if (key.kind != KeyKind::Character || event.type() != QEvent::KeyPress || !GoToCall(event)) return false;
        Deliver([main] { main->SetFocus(); });
    }
    HandToMain(event, key);
    return true;
}

bool TypingGuard::TakeOnForm(Form& form, const QKeyEvent& event, const PressedKey& key) {
    if (EntryKeys::Held(key)) return true;
    if (key.kind == KeyKind::Esc && form.Reachable() && form.EscCloses()) {
        Deliver([&form] { form.UserClosed(); });
        return true;
    }
    if (&form == frmEDR.Peek()) return TakeInStations(event);
    if (&form != frmMain.Peek()) return false;
    if (morse_.StillMeansText(key, now())) return true;
    if (key.kind == KeyKind::Character && form.ActiveControl() == &frmMain->log) GoToCall(event);
    // Enter has another meaning in these controls: in the list it corrects a contact, in the combo box it selects the operator.
    const Control* active = form.ActiveControl();
    if (As<ListBox>(active) != nullptr || As<ComboBox>(active) != nullptr) return false;
    return entry_.Swallows(key, frmMain->fields[kCallField].Text().empty(), now());
}

bool TypingGuard::GoToCall(const QKeyEvent& event) {
    TextBox& call = frmMain->fields[kCallField];
    const std::optional<KeyCode> code = CodeOf(event);
    if (!code || CharacterInto(call, *code) == kNoKey || !frmMain->Reachable()) return false;
    Deliver([&call] { frmMain->UserFocus(call); });
    return true;
}

bool TypingGuard::TakeInStations(const QKeyEvent& event) {
    if (event.modifiers() != Qt::NoModifier || (event.key() != Qt::Key_F3 && event.key() != Qt::Key_F4)) return false;
    if (event.isAutoRepeat()) return true;
    Deliver([worked = event.key() == Qt::Key_F3] {
        if (!frmMain.Loaded() || !frmMain->Reachable()) return;
        (worked ? frmMain->mnuFunktionerKørteEDRstns : frmMain->mnuFunktionerIkkeKørteEDRstns).Choose();
    });
    return true;
}

void TypingGuard::HandToMain(QKeyEvent& event, const PressedKey& key) {
    Form& main = *frmMain.Peek();
    const FormWindow* window = front_.WindowOf(main);
    if (window == nullptr || !main.Reachable()) return;
    const bool press = event.type() == QEvent::KeyPress;
    const QKeySequence sequence(event.keyCombination());
    for (QAction* action : window->Top()->findChildren<QAction*>()) {
        if (!action->shortcuts().contains(sequence)) continue;
        // Ignore auto-repeat: holding F5 would restart its text again and again.
        if (press && !key.repeated) action->trigger();
        Deliver(GiveKeysBackToSending);
        FollowKeys();
        return;
    }
    if (key.kind == KeyKind::AccessLetter) {
        Deliver([&] {
            if (press) main.UserAccessKey(key.letter);
            GiveKeysBackToSending();
        });
        FollowKeys();
        return;
    }
    const Control* active = main.ActiveControl();
    QWidget* widget = active != nullptr ? front_.WidgetOf(*active) : nullptr;
    if (widget == nullptr) return;
    QKeyEvent same(event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat(), static_cast<quint16>(event.count()));
    QApplication::sendEvent(widget, &same);
    Deliver(GiveKeysBackToSending);
    FollowKeys();
}

bool TypingGuard::TakeInputMethod(const QWidget& widget, QInputMethodEvent& event) {
    if (event.commitString().isEmpty() || !Sending() || FormOf(widget.window()) != frmCWTX.Peek()) return false;
    const Control* active = frmMain->ActiveControl();
    QWidget* field = active != nullptr && frmMain->Reachable() ? front_.WidgetOf(*active) : nullptr;
    if (field == nullptr) return true;
    QInputMethodEvent same;
    same.setCommitString(event.commitString());
    QApplication::sendEvent(field, &same);
    Deliver(GiveKeysBackToSending);
    FollowKeys();
    return true;
}

void TypingGuard::FollowKeys() {
    sending_ = Sending();
    marked_.Follow(sending_);
}

void TypingGuard::SendingOver() {
    // Without the focus in the sending window, keys went to the fields of the main form all along, so Esc and Enter were not meant for
    // the text.
    if (std::exchange(sending_, false) && frmCWTX->EndedByItself())
        morse_.EndedByItself(now());
    else
        morse_.Forget();
    FollowKeys();
}

void TypingGuard::WatchLog() {
    if (!frmMain.Loaded()) return;
    const auto* list = qobject_cast<const ItemList*>(front_.WidgetOf(frmMain->log));
    if (list == nullptr || list->model() == log_) return;
    log_ = list->model();
    // Reading a log resets the model, so a single inserted row is a newly logged contact.
    connect(log_, &QAbstractItemModel::rowsInserted, this, [this] { entry_.Logged(now()); });
}

}  // namespace vatro
