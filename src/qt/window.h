// SPDX-License-Identifier: MIT
//
// The window of one form: what it shows of the form's frame, whether it stands alone, above its owner or docked, and what the user does
// with it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QStringList>

#include "bindings.h"
#include "form_place.h"
#include "forms.h"

class QWidget;

namespace vatro {

class DockRoom;
class QtFront;

class FormWindow : public QObject {
    Q_OBJECT

public:
    /// `owner` is the window above which this one stays.
    FormWindow(Form& form, QWidget* owner, QtFront& front);
    /// Deletes the window as soon as Qt permits; nothing from it reaches the form any more.
    ~FormWindow() override;

    /// The top-level widget; null once Qt has deleted it.
    QWidget* Top() const { return top_; }
    QWidget* WidgetOf(const Control& control) const { return bindings_.WidgetOf(control); }
    /// Messages about controls without exactly one widget, and about widgets without a control.
    const QStringList& Problems() const { return bindings_.Problems(); }

    /// Whether the window has been shown but is not on the screen yet.
    bool Arriving() const { return place_.Arriving(); }
    /// Whether the window is a part of the main window now. The form is then not told of places and sizes.
    bool Docked() const;
    Form& Its() const { return form_; }

    /// Updates the window's frame from the form.
    void Follow();
    /// Gives Qt's focus to the form's active control, if the form is the active one.
    void FollowFocus();
    /// Moves the window as if the user had moved it. Measures are in twips, which are finer than pixels.
    void MoveByUser(int left, int top, int width, int height) { place_.MoveByUser(left, top, width, height); }
    /// Docks the window or makes it a window of its own again, as the front wants it.
    void FollowDocking();
    /// Shows the window in another place than the form's. The form is told of a place only after the user has moved the window.
    void Lend(const QRect& place) { place_.Lend(place); }
    bool Lent() const { return place_.Lent(); }
    /// Shows the window in the form's own place again.
    void EndLoan() { place_.EndLoan(); }
    /// The program gives the main window another size. Where the window manager then moves it is not told.
    void BeginResize() { place_.BeginResize(); }
    /// The window's own place on the screen, without its frame.
    QRect OwnPlace() const { return place_.Own(); }
    /// Handles minimising of the main window. Window managers minimise the windows above a main window together with it, although the
    /// program may want them visible. Such a window is detached while the main window is minimised, and put above it again afterwards.
    void FollowOwner();
    /// Reports the size of the layout to a main form.
    void TakeDesignSize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    InputSurroundings Surroundings();
    void Dock(DockRoom& room);
    void LeaveDock();
    /// Restores the enabled state of each control. When Qt enables or disables a window, it does the same to everything in it,
    /// including the windows above it and menus that are disabled on their own.
    void FollowEnabled();
    void FollowVisible();
    void TellState();
    /// Shows the window, also if Qt still considers it minimised from before it was hidden. Sets whether it stands above its owner.
    void PutOnScreen();
    bool TakeKey(const class QKeyEvent& event);

    Form& form_;
    QtFront& front_;
    Bindings bindings_;
    QPointer<QWidget> top_;
    FormPlace place_;
    class ColumnHead* captionHead_ = nullptr;
    /// Whether the window system keeps the window above its owner.
    bool owned_ = true;
    QPointer<DockRoom> room_;
    /// The window above which this one stands when it is not docked.
    QPointer<QWidget> owner_;
};

}  // namespace vatro
