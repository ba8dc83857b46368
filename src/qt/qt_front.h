// SPDX-License-Identifier: MIT
//
// The Qt front: one window for each loaded form, mirroring the form and its controls.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "forms.h"
#include "front.h"

class QMainWindow;
class QMenu;
class QWidget;

namespace vatro {

class DockRoom;
class FormWindow;

class QtFront : public QObject, public Front {
    Q_OBJECT

public:
    QtFront();
    ~QtFront() override;

    void Created(Form& form) override;
    void Destroyed(Form& form) override;
    void Changed(Form& form) override;
    void Activated(Form& form) override;
    void RunModal(Form& form) override;
    void Refresh(Form& form) override;
    void DoEvents() override;
    double TextWidth(std::string_view text, const Font& font) override;
    void Ended() override;

    /// The window of a loaded form, or null.
    FormWindow* WindowOf(const Form& form) const;
    /// The widget of a control, or null if it has none.
    QWidget* WidgetOf(const Control& control) const;
    /// Whether the active form's window has been asked to become the active window but is not active yet.
    bool ActivationPending() const { return activationPending_ || awaited_ != nullptr; }

    /// Waits while a modal form is open; replaceable.
    std::function<void(const std::function<bool()>& over)> waitModal;
    /// Called before a main window is first shown, with the size of its layout.
    std::function<void(QMainWindow& window)> beforeFirstShow;
    /// Called when a main window has its place and size, before it is first shown, to make it fill the screen.
    std::function<void(QMainWindow& window)> placedFirst;
    /// Called before a window is put on the screen, to lend it another place.
    std::function<void(FormWindow& window)> beforeShow;
    /// Whether side windows are docked in the main window if it has room for them. Call FollowDocking after a change.
    bool docksWindows = false;
    /// Whether a main window is shrunk to fit the screen when it is first shown.
    bool fitToScreen = false;
    /// Whether pasted text goes through the fields' key filters.
    bool filterPaste = false;
    /// Whether keys typed while one window gives way to another are preserved.
    bool keepKeys = false;
    /// Whether windows have the habits that their forms ask for on a desktop (Form::onlyShows, Form::tabSelects), dialogues are wide
    /// enough for their titles, boxes without a title have the program's name, and fields show that they refuse a character.
    bool desktopHabits = false;
    /// Add entries to the menu Ekstra of a main window, which stands before the last menu. Without any there is no such menu.
    std::vector<std::function<void(QMainWindow& window, QMenu& menu)>> extraEntries;
    /// Called when the program has ended.
    std::function<void()> ended;

    /// docksWindows has changed.
    void FollowDocking();
    /// The windows of all loaded forms, in the order in which the forms were loaded.
    std::vector<FormWindow*> Windows() const;
    /// The window of the main form, or null.
    FormWindow* MainWindow() const;

    // Called by the windows.

    /// The place where the window of this form is to be docked, or null.
    DockRoom* RoomFor(const Form& form) const;

    /// `leaving` is about to be hidden. If keys are preserved, activates the active form's window below it first. Otherwise keys would
    /// be lost until the window system has chosen the next window.
    void HandKeysOver(const QWidget& leaving) const;
    /// Deletes a hidden window. If keys are preserved, waits until keys already on their way to it have arrived.
    void Remove(QWidget& window) const;
    /// The program has put this window on the screen.
    void Shown(const FormWindow& window);
    /// The main window is on the screen, so show the windows above it.
    void FollowAll();
    /// A window has been minimised or restored; adjust the windows above the main window.
    void FollowOwners();
    /// Whether the main window is minimised.
    bool MainMinimised() const;
    void WindowActivated(Form& form);
    /// The window of this form has received a key or click.
    void WindowUsed(Form& form);

private:
    void FollowActivation();

    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
    /// The window of the active form will be activated the next time Qt processes events.
    bool activationPending_ = false;
    /// The window that was asked to become active but is not active yet. Until then, activations of other windows are out of date.
    QWidget* awaited_ = nullptr;
    /// Windows shown by the program that have not been active since. Some window systems activate every new window.
    std::set<const QWidget*> fresh_;
};

/// Whether events must wait because a handler is repainting its window; a tick must not run between the steps of a handler.
bool TicksHeld();

}  // namespace vatro
