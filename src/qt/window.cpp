// SPDX-License-Identifier: MIT
#include "window.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "binder.h"
#include "column_head.h"
#include "deliver.h"
#include "dock_room.h"
#include "input.h"
#include "qt_front.h"
#include "qt_text.h"
#include "refusal_flash.h"
#include "title_room.h"
#include "top_widget.h"

namespace vatro {

FormWindow::FormWindow(Form& form, QWidget* owner, QtFront& front)
    : form_(form),
      front_(front),
      bindings_(Surroundings()),
      top_(MakeTop(form, front.desktopHabits, owner, bindings_)),
      place_(form, front.desktopHabits, *top_),
      captionHead_(top_->findChild<ColumnHead*>(QStringLiteral("FormCaption"))),
      owner_(owner) {
    BindForm(form, *top_, bindings_);
    if (RefusesKeys(form, front.desktopHabits))
        for (QWidget* widget : top_->findChildren<QWidget*>()) widget->setFocusPolicy(Qt::NoFocus);
    if (auto* window = qobject_cast<QMainWindow*>(top_.data())) AddExtraMenu(*window, front.extraEntries, bindings_);
    Follow();
    if (front_.desktopHabits && HasDialogSize(form_.Kind())) KeepTitleWhole(*top_);
    top_->installEventFilter(this);
}

FormWindow::~FormWindow() {
    bindings_.Close();
    if (!top_) return;
    top_->removeEventFilter(this);
    if (Docked()) room_->Release(*top_);
    for (DockRoom* room : top_->findChildren<DockRoom*>()) room->ReleaseAll();
    // Windows above this one get another owner soon, or are deleted themselves; detach them so that they are not deleted with this one.
    for (QWidget* child : top_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (IsTop(*child)) child->setParent(nullptr, child->windowFlags());
    front_.HandKeysOver(*top_);
    top_->hide();
    front_.Remove(*top_);
}

InputSurroundings FormWindow::Surroundings() {
    return {.followFocusSoon = [this] { QTimer::singleShot(0, &bindings_.Scope(), [this] { FollowFocus(); }); },
            .filtersPaste = [this] { return front_.filterPaste; },
            .selectsOnTab = [this] { return front_.desktopHabits && form_.tabSelects; },
            .refused =
                [this](QWidget& field) {
                    if (front_.desktopHabits) RefusalFlash::Flash(field);
                }};
}

void FormWindow::TakeDesignSize() {
    if (form_.Kind() != FormKind::Main) return;
    const QSize size = top_->size();
    form_.SetDesignSize(size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel);
}

void FormWindow::Follow() {
    const QString caption = ToQt(form_.Caption());
    if (top_->windowTitle() != caption) top_->setWindowTitle(caption);
    bindings_.NameWidgets(caption.simplified());
    if (captionHead_ != nullptr) captionHead_->SetCaption(caption);
    if (top_->isEnabled() != form_.Enabled()) top_->setEnabled(form_.Enabled());
    if (form_.Hourglass())
        top_->setCursor(Qt::WaitCursor);
    else if (top_->testAttribute(Qt::WA_SetCursor))
        top_->unsetCursor();
    FollowDocking();
    if (!Docked()) place_.Follow();
    FollowVisible();
    FollowFocus();
}

bool FormWindow::Docked() const {
    return room_ != nullptr && top_ != nullptr && room_->Has(*top_);
}

void FormWindow::FollowDocking() {
    DockRoom* room = form_.Kind() == FormKind::Tool ? front_.RoomFor(form_) : nullptr;
    if (Docked() ? room == room_ : room == nullptr) return;
    if (Docked()) LeaveDock();
    if (room != nullptr) Dock(*room);
}

void FormWindow::Dock(DockRoom& room) {
    // A window gets its fonts when it is polished, and keeps them here.
    top_->ensurePolished();
    if (QWindow* handle = top_->windowHandle()) handle->removeEventFilter(this);
    {
        const auto held = place_.Hold();
        top_->hide();
        room.Take(*top_);
    }
    place_.Leave();
    room_ = &room;
    FollowVisible();
}

void FormWindow::LeaveDock() {
    room_->Release(*top_);
    room_ = nullptr;
    top_->setParent(owner_, FlagsOf(form_, front_.desktopHabits));
    place_.Return();
    FollowVisible();
}

void FormWindow::FollowEnabled() {
    if (top_->isEnabled() != form_.Enabled()) {
        // This triggers the event that calls this function again.
        top_->setEnabled(form_.Enabled());
        return;
    }
    for (const Control* control : form_.Controls())
        if (control->mirror) control->mirror(Aspect::Enabled, -1);
}

void FormWindow::FollowVisible() {
    if (Docked()) return top_->setVisible(form_.Visible());
    if (form_.Visible() == top_->isVisible()) return;
    if (!form_.Visible()) {
        front_.HandKeysOver(*top_);
        top_->hide();
        return;
    }
    // A window manager keeps a window above another only if it already knows the other one, so wait until the owner is shown.
    if (form_.Kind() == FormKind::Tool && top_->parentWidget() != nullptr && !top_->parentWidget()->isVisible()) return;
    top_->setWindowModality(form_.Modal() ? Qt::ApplicationModal : Qt::NonModal);
    {
        const auto held = place_.Hold();
        place_.PlaceFirst();
        auto* window = qobject_cast<QMainWindow*>(top_.data());
        if (window != nullptr && front_.beforeFirstShow) front_.beforeFirstShow(*window);
        if (front_.beforeShow) front_.beforeShow(*this);
        if (form_.Kind() == FormKind::Main && front_.fitToScreen) place_.FitToScreen();
        // A window that fills the screen can no longer be given the size that it will be restored to.
        if (window != nullptr && front_.placedFirst) front_.placedFirst(*window);
    }
    PutOnScreen();
    if (form_.Kind() == FormKind::Main) front_.FollowAll();
}

void FormWindow::PutOnScreen() {
    if (form_.Kind() == FormKind::Tool && top_->windowHandle() != nullptr) {
        const QWidget* owner = top_->parentWidget();
        owned_ = !front_.MainMinimised();
        top_->windowHandle()->setTransientParent(owned_ && owner != nullptr ? owner->windowHandle() : nullptr);
    }
    // A window that was minimised with its owner and then hidden would be shown minimised again, and its owner with it.
    if (form_.State() != WindowState::Minimised) top_->setWindowState(top_->windowState() & ~Qt::WindowMinimized);
    place_.BeginArrival();
    top_->show();
    top_->windowHandle()->installEventFilter(this);
    if (top_->windowHandle()->isExposed()) place_.Arrive();
    front_.Shown(*this);
}

void FormWindow::FollowOwner() {
    if (form_.Kind() != FormKind::Tool || !form_.Visible() || !top_->isVisible() || Docked()) return;
    const bool alone = front_.MainMinimised();
    const bool takenAlong = top_->isMinimized() && form_.State() != WindowState::Minimised;
    if (!takenAlong && (alone || owned_)) return;
    // The owner of a window can only be changed while the window is hidden.
    {
        const auto held = place_.Hold();
        const QPoint at = top_->pos();
        top_->hide();
        top_->move(at);
    }
    PutOnScreen();
}

void FormWindow::FollowFocus() {
    const Control* active = form_.ActiveControl();
    // Setting the focus can make Qt activate the window. A window that should not be active gets its focus when it is activated.
    if (active == nullptr || &form_ != ActiveForm() || Docked()) return;
    QWidget* widget = WidgetOf(*active);
    if (widget == nullptr) return;
    QWidget* const focused = top_->focusWidget();
    if (!widget->isEnabled() || widget->isHidden()) {
        // The active control cannot take keys, so drop the focus until the form moves it.
        if (focused != nullptr) focused->clearFocus();
    } else if (focused != widget) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void FormWindow::TellState() {
    const WindowState state = top_->isMinimized()   ? WindowState::Minimised
                              : top_->isMaximized() ? WindowState::Maximised
                                                    : WindowState::Normal;
    // A side window that was minimised together with the main window has not changed its own state.
    // On a desktop it has no button for it, and a window manager may be late in minimising it.
    const bool along = form_.Kind() == FormKind::Tool && state == WindowState::Minimised &&
                       (!top_->isVisible() || front_.MainMinimised() || front_.desktopHabits);
    const QPointer<FormWindow> self(this);
    if (!along) Deliver([&] { form_.UserState(state); });
    if (self != nullptr) front_.FollowOwners();
}

bool FormWindow::TakeKey(const QKeyEvent& event) {
    // Only keys that no control has used arrive here.
    if (const char letter = AccessLetterOf(event); letter != 0) {
        Deliver([&] {
            if (form_.Reachable()) form_.UserAccessKey(letter);
        });
        return true;
    }
    const std::optional<KeyCode> key = CodeOf(event);
    if (!key || form_.ActiveControl() != nullptr) return false;
    Deliver([&] {
        if (!form_.Reachable()) return;
        if ((*key == kEnter || *key == kEsc) && form_.UserDefaultKey(*key)) return;
        form_.UserKey(*key);
    });
    return true;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != top_) {
        // The window sees keys and clicks before its widgets do.
        const bool used = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
        if (used && !RefusesKeys(form_, front_.desktopHabits)) front_.WindowUsed(form_);
        if (event->type() == QEvent::Expose && Arriving() && top_->windowHandle()->isExposed()) place_.Arrive();
        return false;
    }
    // A docked window passes everything on to the main window.
    if (Docked() && event->type() != QEvent::EnabledChange) return false;
    switch (event->type()) {
        case QEvent::Close:
            event->ignore();
            Deliver([&] {
                if (form_.Reachable()) form_.UserClosed();
            });
            return true;
        case QEvent::Move:
        case QEvent::Resize:
            place_.Moved();
            return false;
        case QEvent::EnabledChange:
            FollowEnabled();
            return false;
        case QEvent::WindowStateChange:
            place_.StateChanged();
            TellState();
            return false;
        case QEvent::WindowActivate:
            front_.WindowActivated(form_);
            return false;
        case QEvent::MouseButtonPress:
            Deliver([&] {
                if (form_.Reachable()) form_.UserClicked();
            });
            return true;
        case QEvent::ShortcutOverride:
            return KeepsKey(form_, static_cast<QKeyEvent&>(*event));
        case QEvent::KeyPress:
            return TakeKey(static_cast<QKeyEvent&>(*event));
        default:
            return false;
    }
}

}  // namespace vatro
