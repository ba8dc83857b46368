// SPDX-License-Identifier: MIT
//
// The window of one form, made from its layout and, for a main form, from the form's own description of menu, toolbar
// and status bar.
//
// 15 twips of the form are one pixel at 96 dpi; Qt scales. A number of the form that says the pixel on which the window
// stands is left as it is, so that nothing drifts.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <optional>

#include "bindings.h"
#include "forms.h"

class QWidget;

namespace vatro {

class QtFront;

inline constexpr int kTwipsPerPixel = 15;
/// Rounded.
int ToPixels(int twips);

/// In twips.
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
    /// The window goes as soon as Qt lets it; nothing of it reaches the form any more.
    ~FormWindow() override;

    QWidget* Top() const { return top_; }
    QWidget* WidgetOf(const Control& control) const { return bindings_.WidgetOf(control); }
    /// Controls without exactly one widget, and widgets without a control.
    const QStringList& Problems() const { return bindings_.Problems(); }

    /// Shown, and not on the screen yet.
    bool Arriving() const { return arriving_; }

    /// Takes over what the form says of its frame.
    void Follow();
    /// Gives Qt's focus to the form's active control, if the form is the active one.
    void FollowFocus();
    /// The user puts the window there; in twips, which are finer than what the screen can show.
    void MoveByUser(int left, int top, int width, int height);
    /// Window managers minimise the windows above a main window with it, though the program may want them on the screen. One that
    /// it wants stands by itself as long as the main window is minimised, and above it again afterwards.
    void FollowOwner();
    /// The size of the layout becomes that of a main form.
    void TakeDesignSize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    InputSurroundings Surroundings();
    void Build(QWidget* owner);
    void AddAppearance();
    WindowPlace Told() const;
    /// Qt enables and disables whatever belongs to a window together with it: windows above it, and the menus, even those that
    /// are disabled themselves. Their own state is put back.
    void FollowEnabled();
    void FollowPlace();
    void FollowVisible();
    void Arrive();
    /// In the middle of the owner or of the screen, for a form that does not say where it stands.
    void FirstPlace();
    /// A fixed window gets the size for good, not the user.
    void SetSize(const class QSize& size);
    void FitToScreen();
    /// The frame is not known before the window is on the screen.
    int TitleHeight() const;
    void TellPlace(const WindowPlace& finer);
    void TellPlace();
    void TellState();
    /// Shows the window, which Qt may think minimised since it was hidden, or anew beside or above its owner.
    void PutOnScreen();
    bool TakeKey(const class QKeyEvent& event);

    Form& form_;
    QtFront& front_;
    QPointer<QWidget> top_;
    Bindings bindings_;
    class ColumnHead* captionHead_ = nullptr;
    /// As it was last taken over from the form, if ever.
    std::optional<WindowPlace> place_;
    bool placing_ = false;
    bool telling_ = false;
    bool arriving_ = false;
    /// The window stands where the form says, or where the front has put it first.
    bool placed_ = false;
    /// The window system keeps the window above its owner.
    bool owned_ = true;
};

}  // namespace vatro
