// SPDX-License-Identifier: MIT
//
// The window of one form, built from its layout. A main form's menu, toolbar and status bar are built from the form's own description.
//
// 15 twips of a form are one pixel at 96 dpi; Qt does any further scaling. A position in the form that already rounds to the window's
// pixel position is not changed, so that windows do not drift.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QStringList>
#include <optional>

#include "bindings.h"
#include "forms.h"

class QWidget;

namespace vatro {

class DockRoom;
class QtFront;

inline constexpr int kTwipsPerPixel = 15;
/// Converts twips to pixels, rounded.
int ToPixels(int twips);

/// Position and size in twips.
struct WindowPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

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
    bool Arriving() const { return arriving_; }
    /// Whether the window is a part of the main window now. The form is then not told of places and sizes.
    bool Docked() const;
    Form& Its() const { return form_; }

    /// Updates the window's frame from the form.
    void Follow();
    /// Gives Qt's focus to the form's active control, if the form is the active one.
    void FollowFocus();
    /// Moves the window as if the user had moved it. Measures are in twips, which are finer than pixels.
    void MoveByUser(int left, int top, int width, int height);
    /// Docks the window or makes it a window of its own again, as the front wants it.
    void FollowDocking();
    /// Shows the window in another place than the form's. The form is told of a place only after the user has moved the window.
    void Lend(const QRect& place);
    bool Lent() const { return loan_.has_value(); }
    /// Shows the window in the form's own place again.
    void EndLoan();
    /// The window's own place on the screen, without its frame.
    QRect OwnPlace() const;
    /// Handles minimising of the main window. Window managers minimise the windows above a main window together with it, although the
    /// program may want them visible. Such a window is detached while the main window is minimised, and put above it again afterwards.
    void FollowOwner();
    /// Reports the size of the layout to a main form.
    void TakeDesignSize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether the window leaves the keyboard to the others.
    bool RefusesKeys() const;
    InputSurroundings Surroundings();
    void Build(QWidget* owner);
    void Dock(DockRoom& room);
    void LeaveDock();
    void AddExtraMenu();
    WindowPlace Told() const;
    /// Restores the enabled state of each control. When Qt enables or disables a window, it does the same to everything in it,
    /// including the windows above it and menus that are disabled on their own.
    void FollowEnabled();
    void FollowPlace();
    void FollowVisible();
    void Arrive();
    /// Centres the window on its owner or on the screen, if the form has no position of its own.
    void FirstPlace();
    /// Sets the window's size. A fixed tool window is fixed at this size.
    void SetSize(const class QSize& size);
    void FitToScreen();
    /// Estimated height of the title bar; the real frame is not known before the window is on the screen.
    int TitleHeight() const;
    void TellPlace(const WindowPlace& finer);
    void TellPlace();
    /// Whether the window still is where it has been lent a place, so that there is nothing to tell.
    bool OnLoan();
    void TellState();
    /// Shows the window, also if Qt still considers it minimised from before it was hidden. Sets whether it stands above its owner.
    void PutOnScreen();
    bool TakeKey(const class QKeyEvent& event);

    Form& form_;
    QtFront& front_;
    QPointer<QWidget> top_;
    Bindings bindings_;
    class ColumnHead* captionHead_ = nullptr;
    /// The place last taken from the form, if any.
    std::optional<WindowPlace> place_;
    bool placing_ = false;
    bool telling_ = false;
    bool arriving_ = false;
    /// The window has been positioned, either by the form or by FirstPlace.
    bool placed_ = false;
    /// Whether the window system keeps the window above its owner.
    bool owned_ = true;
    QPointer<DockRoom> room_;
    /// The window above which this one stands when it is not docked.
    QPointer<QWidget> owner_;
    /// The place that the window has been lent, as the window system has made it, if any.
    std::optional<QRect> loan_;
    /// Since when the loan has had this place and size.
    QElapsedTimer loanSince_;
};

}  // namespace vatro
