// SPDX-License-Identifier: MIT
//
// Sees every key of the program before its window does, and keeps back what the operator did not mean. What decides stands in
// extras/box_keys.h, extras/entry_keys.h and extras/morse_keys.h; here it is told what happens in Qt.
//
// While a Morse text is sent its window has the keys, but only its own few. The others are handed on to the main form, which
// gets them as if it were in front, and the window that sends keeps the focus: Esc and Enter go on stopping the text.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>

#include "box_keys.h"
#include "entry_keys.h"
#include "held_keys.h"
#include "morse_keys.h"

class QAbstractItemModel;
class QInputMethodEvent;
class QKeyEvent;
class QMessageBox;
class QWidget;
class QWindow;

namespace vatro {

class FieldMark;
class Form;
class QtFront;

class TypingGuard : public QObject {
    Q_OBJECT

public:
    /// Works from now on, for all windows of the application. The front outlives it.
    explicit TypingGuard(QtFront& front);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The clock of the guards; a test may put its own in its place.
    std::function<Moment()> now;

private:
    bool TakeKey(const QWindow& window, QKeyEvent& event);
    /// A key that was on its way to a window when that was hidden: for the one that has the keys now.
    bool HandOn(const QKeyEvent& event, bool repeated) const;
    bool TakeOnBox(QMessageBox& box, const PressedKey& key);
    /// Keys while a text is sent, at the window that sends or, as long as the focus is on its way there, at the main form's.
    bool TakeWhileSending(QKeyEvent& event, const PressedKey& key);
    bool TakeOnForm(const Form& form, const PressedKey& key);
    /// What an input method brings in while a text is sent.
    bool TakeInputMethod(const QWidget& widget, QInputMethodEvent& event);
    void HandToMain(QKeyEvent& event, const PressedKey& key);
    /// Shows which field of the main form gets the keys while another window has the focus.
    void MarkField();
    /// The window that sends has been hidden.
    void SendingOver();
    void WatchLog();
    Form* FormOf(const QWidget* window) const;

    QtFront& front_;
    QElapsedTimer clock_;
    HeldKeys held_;
    BoxKeys box_;
    EntryKeys entry_;
    MorseKeys morse_;
    /// The window that sends had the keys when it was last looked.
    bool sending_ = false;
    /// Made at first use; goes with the main window.
    QPointer<FieldMark> mark_;
    /// The rows of the log on the main form, once they are watched.
    QPointer<const QAbstractItemModel> log_;
};

}  // namespace vatro
