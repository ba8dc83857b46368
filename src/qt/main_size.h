// SPDX-License-Identifier: MIT
//
// Remembers the size of the main window, and whether it was maximised or filled the screen. The program itself keeps only its place. The
// settings of this class are in a section of their own.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <optional>
#include <string_view>

#include "settling.h"

class QAction;
class QMainWindow;

namespace vatro {

class QtFront;
class Settings;

/// The section of the settings that the windows of the desktop keep to themselves.
inline constexpr std::string_view kWindowSection = "Vindue";

/// The size of a window at a first start, of which `layout` is the smallest useful one, or nothing if it is to fill the screen.
std::optional<QSize> FirstSize(const QSize& layout, const QSize& screen);

/// Makes the window as large as its content needs it now, `size` or nothing, but no larger than its screen and no smaller than its own
/// size, which the user has given it, or as much of it as the screen has room for at the window's place. Its own size is remembered, and is
/// the one that is stored. A window on the screen is lent another place as long as there is no room at its own.
void Grow(QMainWindow& window, const QSize& size);
/// The size that the user has given the window, whatever the program and the window manager have made of it.
QSize OwnSize(const QMainWindow& window);

class MainSize : public QObject {
    Q_OBJECT

public:
    /// Adds the command "Hele skærmen" to the menu Ekstra. Both arguments must outlive this object.
    MainSize(QtFront& front, Settings& settings);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore(QMainWindow& window);
    /// The window manager changes the size now.
    void BeginSettling();
    void Rest();
    void Store();
    void StoreState();
    void ToggleFullScreen();

    Settings& settings_;
    QPointer<QMainWindow> window_;
    QPointer<QAction> fullScreen_;
    Settling settling_;
    /// The window has not been painted yet.
    bool fresh_ = true;
    /// The state of the window when it was last visible and not minimised; in full screen also whether it is maximised afterwards.
    Qt::WindowStates state_;
    /// The window was maximised before it was in full screen, if it is.
    bool maximised_ = false;
    /// The window is maximised only because the screen is small.
    bool forScreen_ = false;
    /// The window has been given a size. One that has only filled a small screen has none.
    bool sized_ = true;
    /// A window that is being dragged changes its size many times a second.
    QTimer soon_;
};

}  // namespace vatro
