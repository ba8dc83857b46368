// SPDX-License-Identifier: MIT
//
// The front on Qt: one window for each loaded form, which mirrors what form and controls tell it.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <set>

#include "forms.h"
#include "front.h"

class QWidget;

namespace vatro {

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

    /// The window of a loaded form, or nothing.
    FormWindow* WindowOf(const Form& form) const;
    /// The widget of a control, or nothing if it has none.
    QWidget* WidgetOf(const Control& control) const;
    /// The active form's window is, or is about to become, the active window.
    bool ActivationPending() const { return activationPending_ || awaited_ != nullptr; }

    /// Waits while a modal form is open; another wait can be put in its place.
    std::function<void(const std::function<bool()>& over)> waitModal;
    /// A main window does not reach beyond the screen when it is first shown.
    bool fitToScreen = false;
    /// Pasted text goes through the fields' filters as keys do.
    bool filterPaste = false;
    /// No key is lost that is typed while one window gives way to another.
    bool keepKeys = false;
    /// The program has ended.
    std::function<void()> ended;

    // From the windows.

    /// The window is about to be hidden. If keys are kept, that of the active form, above which it stands, gets them first: left
    /// to the window system they would go nowhere until it has chosen the next window.
    void HandKeysOver(const QWidget& leaving) const;
    /// Removes a hidden window; if keys are kept, not before those that were on their way to it have come.
    void Remove(QWidget& window) const;
    /// The window has been put on the screen by the program.
    void Shown(const FormWindow& window);
    /// The main window is on the screen: those above it may follow.
    void FollowAll();
    /// A window has been minimised or restored: the windows above the main window follow.
    void FollowOwners();
    /// Whether the main window is minimised.
    bool MainMinimised() const;
    void WindowActivated(Form& form);
    /// Keys or clicks have arrived at the window of this form.
    void WindowUsed(Form& form);

private:
    void FollowActivation();

    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
    /// The window of the active form will be activated when Qt's events run next.
    bool activationPending_ = false;
    /// Asked to become the active window, and not yet it: what other windows tell meanwhile is out of date.
    QWidget* awaited_ = nullptr;
    /// Shown by the program and not active since: some window systems make every new window the active one.
    std::set<const QWidget*> fresh_;
};

/// Whether events wait, by which a tick of the clock must not come between the steps of a handler.
bool TicksHeld();

}  // namespace vatro
