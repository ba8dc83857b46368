// SPDX-License-Identifier: MIT
//
// The place and size of a form's window: put on the screen as the form wants them, and told to the form when they change there.
//
// 15 twips of a form are one pixel at 96 dpi; Qt does any further scaling. A position in the form that already rounds to the window's
// pixel position is not changed, so that windows do not drift.
//
// On a desktop the main form and its side windows are told only of places that the user has chosen: where and how large the window manager
// shows, maximises or restores the window changes nothing, nor does a push to a window that its text has made wider, and only what differs
// from that is the user's.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QScopedValueRollback>
#include <optional>

#include "forms.h"
#include "settling.h"

class QWidget;

namespace vatro {

inline constexpr int kTwipsPerPixel = 15;
/// Converts twips to pixels, rounded.
int ToPixels(int twips);

/// Whether a window of this kind first has the size that its layout asks for.
bool HasDialogSize(FormKind kind);

class FormPlace : public QObject {
    Q_OBJECT

public:
    /// `desktop`: whether the window has the habits of a desktop. The form must outlive this object; Qt may delete `top` earlier.
    FormPlace(Form& form, bool desktop, QWidget& top);

    /// Whether the window has been shown but is not on the screen yet.
    bool Arriving() const { return arriving_; }
    /// The window will be shown.
    void BeginArrival();
    /// The window is on the screen.
    void Arrive();
    /// The window has become a part of another one.
    void Leave();

    /// Puts the window where the form is now, if the form has been moved.
    void Follow();
    /// Puts the window where the form is, wherever the window has been in the meantime.
    void Return();
    /// Tells the form where the window is now.
    void Tell();
    /// The window has been moved or resized.
    void Moved();
    /// The window has been minimised, maximised or restored.
    void StateChanged();
    /// While the result exists, changes of the window are not told.
    [[nodiscard]] QScopedValueRollback<bool> Hold() { return QScopedValueRollback<bool>(placing_, true); }

    /// Centres the window on its owner or on the screen, if it has not been placed yet.
    void PlaceFirst();
    void FitToScreen();
    /// The program gives the main window another size. Where the window manager then moves it is not told.
    void BeginResize();

    /// Moves the window as if the user had moved it. Measures are in twips, which are finer than pixels.
    void MoveByUser(int left, int top, int width, int height);
    /// Shows the window in another place than the form's. The form is told of a place only after the user has moved the window.
    void Lend(const QRect& place);
    bool Lent() const { return loan_.has_value() || away_; }
    /// Shows the window in the form's own place again.
    void EndLoan();
    /// The form's own place on the screen, without the window's frame.
    QRect Own() const;

private:
    /// Position and size in twips.
    struct Measures {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        friend bool operator==(const Measures&, const Measures&) = default;
    };

    Measures Told() const;
    void Tell(const Measures& finer);
    void TellForm(const Measures& now);
    /// What to tell the form of a window that is here now. A measure that is the same in pixels keeps its twips, those of `finer`.
    Measures ToTwips(const QRect& now, const Measures& finer) const;
    QRect Now() const;
    /// Whether the window manager's moves of this window are told from its user's.
    bool KnowsUser() const;
    /// Whether the window is a side window whose place is not that of the form, because the window manager has pushed it away.
    bool Pushed() const;
    /// Puts a pushed window back if it now is wholly on the screen at the form's place.
    void PutBack();
    /// Whether the window fills the screen.
    bool Large() const;
    void Rest(bool byManager);
    /// Whether the window manager has put the window itself in the place of its frame, as some do that have first shown it large.
    bool ShiftedByFrame() const;
    /// Sets the window's size. A fixed tool window is fixed at this size.
    void SetSize(const QSize& size);
    /// Estimated height of the title bar; the real frame is not known before the window is on the screen.
    int TitleHeight() const;
    /// Whether the window still is where it has been lent a place, so that there is nothing to tell.
    bool OnLoan();

    Form& form_;
    bool desktop_;
    QPointer<QWidget> top_;
    /// The place last taken from the form, if any.
    std::optional<Measures> place_;
    bool placing_ = false;
    bool telling_ = false;
    bool arriving_ = false;
    /// The window has been positioned, either by the form or by PlaceFirst.
    bool placed_ = false;
    /// The place that the window has been lent, as the window system has made it, if any.
    std::optional<QRect> loan_;
    /// The main window stands in a place that it has been lent.
    bool away_ = false;
    /// Since when the loan has had this place and size.
    QElapsedTimer loanSince_;
    /// Where the program has put the window.
    QPoint put_;
    /// The window was large when it was shown, and still is.
    bool shownLarge_ = false;
    Settling settling_;
    /// The window as it was when it last was at rest and not large, and the place that the user had chosen then.
    struct Choice {
        QRect seen;
        Measures chosen;
    };
    std::optional<Choice> choice_;
};

}  // namespace vatro
