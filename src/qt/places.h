// SPDX-License-Identifier: MIT
//
// Where windows are shown whose stored place would be in the way: side windows that would cover the entry fields or that the user has never
// moved, and windows that would lie outside the screens. They are lent another place; the program's own place of the window changes only
// when the user moves it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <vector>

class QWidget;

namespace vatro {

class FormWindow;
class QtFront;

/// Returns a frame for each of `windows`, none wider or higher than before, arranged around the main window. Windows with one line of
/// large letters go below or above the main window and keep their aspect ratio; the others go to its right or left. If the screen has room
/// on some of these sides only, all go there; if it has none, they go over the right of `log`. A window that would then cover one of
/// `taken` goes where it covers none, if there is such a place outside the main window or over `log`.
std::vector<QRect> BesideMain(const QRect& screen, const QRect& main, const QRect& log, std::vector<QRect> windows,
                              std::vector<QRect> taken = {});

/// Whether a window with this frame can be seen and moved: at least half of it, and of its title bar, lies on one of the screens.
bool OnScreens(const QRect& frame, int title, const std::vector<QRect>& screens);

class Places : public QObject {
    Q_OBJECT

public:
    /// `front` must outlive this object.
    explicit Places(QtFront& front);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show(FormWindow& window);
    /// Looks at all side windows anew, after the main window, the screens, or a text in a lent place have changed.
    void Settle();
    /// The floating side windows whose own place is in the way: the visible ones, and one that is about to be shown.
    std::vector<FormWindow*> Displaced(const FormWindow* coming = nullptr) const;
    void Arrange(const std::vector<FormWindow*>& windows);
    /// Whether the window should not be shown at its own place: that is in the way, or nobody has chosen it.
    bool Unwanted(const FormWindow& window) const;
    /// Whether a side window with this place, without its frame, would cover fields or lie outside the screens.
    bool InTheWay(const QRect& window) const;
    /// The fields and buttons of the main form below its log; empty if it is not on the screen.
    QRect EntryFields() const;
    /// The log of the main form to the right of its calls.
    QRect Log() const;

    QtFront& front_;
    QPointer<QWidget> main_;
    QTimer soon_;
    /// Whether the main window has just been shown.
    bool fresh_ = false;
    /// What Arrange has last arranged, and where.
    std::vector<FormWindow*> arranged_;
    std::vector<QRect> arrangement_;
};

}  // namespace vatro
