// SPDX-License-Identifier: MIT
//
// Sees every key before the program's windows do, and suppresses keys that the operator did not mean. The decisions are made in
// extras/box_keys.h, extras/entry_keys.h and extras/morse_keys.h; this class reports Qt's events to them.
//
// While a Morse text is being sent, the sending window has the focus, but uses only a few keys. All other keys are passed to the main
// form, which handles them as if it were in front. The sending window keeps the focus, so Esc and Enter still stop the text.
//
// Some keys that no rule uses go where the operator means them: letters typed over the log to the call field, Esc in a window that only
// shows something to its close button, letters typed after a paper was made to the call field, F3 and F4 from one list of stations to
// the other.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>

#include "box_keys.h"
#include "entry_keys.h"
#include "held_keys.h"
#include "marked_field.h"
#include "morse_keys.h"

class QAbstractItemModel;
class QInputMethodEvent;
class QKeyEvent;
class QMessageBox;
class QWidget;
class QWindow;

namespace vatro {

class Form;
class QtFront;

class TypingGuard : public QObject {
    Q_OBJECT

public:
    /// Starts guarding all windows of the application. `front` must outlive this object.
    explicit TypingGuard(QtFront& front);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The clock of the guards; tests may replace it.
    std::function<Moment()> now;

private:
    bool TakeKey(const QWindow& window, QKeyEvent& event);
    /// Passes a key that was on its way to a window that has since been hidden to the window that has the focus now.
    bool HandOn(const QKeyEvent& event, bool repeated) const;
    bool TakeOnBox(QMessageBox& box, const PressedKey& key);
    /// Handles keys while a text is being sent. They arrive at the sending window or, before it has received the focus, at the main
    /// form's.
    bool TakeWhileSending(QKeyEvent& event, const PressedKey& key);
    /// Handles keys on the progress window of the papers, which has the focus but no use for letters: a character goes to the call field
    /// of the main form, and so do the keys that follow until the main form's window has the focus.
    bool TakeBesideProgress(QKeyEvent& event, const PressedKey& key);
    bool TakeOnForm(Form& form, const QKeyEvent& event, const PressedKey& key);
    /// Moves the focus to the call field if the key is a character for it. Returns whether it has.
    static bool GoToCall(const QKeyEvent& event);
    /// The keys of the two lists of the society's stations change from one list to the other.
    static bool TakeInStations(const QKeyEvent& event);
    /// Handles input-method text while a Morse text is being sent.
    bool TakeInputMethod(const QWidget& widget, QInputMethodEvent& event);
    void HandToMain(QKeyEvent& event, const PressedKey& key);
    /// The focus has moved or may have moved.
    void FollowKeys();
    /// The sending window has been hidden.
    void SendingOver();
    void WatchLog();
    Form* FormOf(const QWidget* window) const;

    QtFront& front_;
    QElapsedTimer clock_;
    HeldKeys held_;
    BoxKeys box_;
    EntryKeys entry_;
    MorseKeys morse_;
    /// Whether the sending window had the focus when last checked.
    bool sending_ = false;
    MarkedField marked_;
    /// The model of the log list on the main form, once it is being watched.
    QPointer<const QAbstractItemModel> log_;
};

}  // namespace vatro
