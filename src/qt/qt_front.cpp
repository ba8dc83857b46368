// SPDX-License-Identifier: MIT
#include "qt_front.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <chrono>

#include "deliver.h"
#include "dock_room.h"
#include "fields.h"
#include "program.h"
#include "qt_text.h"
#include "window.h"

namespace vatro {

namespace {

int held = 0;

}  // namespace

bool TicksHeld() {
    return held > 0;
}

QtFront::QtFront() : waitModal([](const std::function<bool()>& over) { WaitLoop(over).Run(); }) {}

QtFront::~QtFront() = default;

FormWindow* QtFront::WindowOf(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.get();
}

QWidget* QtFront::WidgetOf(const Control& control) const {
    const FormWindow* window = WindowOf(control.Parent());
    return window == nullptr ? nullptr : window->WidgetOf(control);
}

void QtFront::Created(Form& form) {
    const FormWindow* main = form.Kind() != FormKind::Main ? MainWindow() : nullptr;
    QWidget* owner = main != nullptr ? main->Top() : nullptr;
    windows_[&form] = std::make_unique<FormWindow>(form, owner, *this);
    windows_[&form]->TakeDesignSize();
}

void QtFront::Destroyed(Form& form) {
    if (const FormWindow* window = WindowOf(form)) {
        if (window->Top() == awaited_) awaited_ = nullptr;
        fresh_.erase(window->Top());
    }
    for (Control* control : form.Controls()) control->mirror = nullptr;
    windows_.erase(&form);
    WaitLoop::Look();
}

void QtFront::Changed(Form& form) {
    if (FormWindow* window = WindowOf(form)) window->Follow();
    WaitLoop::Look();
}

void QtFront::Activated(Form& /*form*/) {
    // Activate later: a handler may activate several forms in turn, and only the last one matters.
    if (activationPending_) return;
    activationPending_ = true;
    QTimer::singleShot(0, this, &QtFront::FollowActivation);
}

void QtFront::FollowActivation() {
    activationPending_ = false;
    Form* form = ActiveForm();
    FormWindow* window = form != nullptr ? WindowOf(*form) : nullptr;
    // An open box keeps the focus; the form gets it back when the box closes.
    if (window == nullptr || QApplication::activeModalWidget() != (form->Modal() ? window->Top() : nullptr)) return;
    if (!window->Top()->isVisible()) return;
    // The keys of a docked window are those of the main window.
    if (window->Docked()) {
        awaited_ = nullptr;
        Deliver([this] { MainWindow()->Its().UserActivated(); });
        return;
    }
    window->FollowFocus();
    if (QApplication::activeWindow() == window->Top()) {
        // An earlier request for another window is obsolete, and may never be fulfilled.
        awaited_ = nullptr;
        return;
    }
    awaited_ = window->Top();
    window->Top()->raise();
    window->Top()->activateWindow();
}

void QtFront::HandKeysOver(const QWidget& leaving) const {
    const Form* form = ActiveForm();
    const FormWindow* next = form != nullptr ? WindowOf(*form) : nullptr;
    if (!keepKeys || next == nullptr || !next->Top()->isVisible() || QApplication::activeWindow() != &leaving) return;
    QWindow* from = leaving.windowHandle();
    QWindow* to = next->Top()->windowHandle();
    if (from != nullptr && to != nullptr && to != from && to->isAncestorOf(from)) to->requestActivate();
}

void QtFront::Remove(QWidget& window) const {
    using namespace std::chrono_literals;
    if (keepKeys)
        QTimer::singleShot(1s, &window, &QObject::deleteLater);
    else
        window.deleteLater();
}

void QtFront::Shown(const FormWindow& window) {
    fresh_.insert(window.Top());
}

void QtFront::FollowAll() {
    for (const auto& [form, window] : windows_)
        if (form->Visible() && !window->Top()->isVisible()) window->Follow();
}

void QtFront::FollowOwners() {
    for (const auto& [form, window] : windows_) window->FollowOwner();
}

void QtFront::FollowDocking() {
    for (const auto& [form, window] : windows_) window->FollowDocking();
}

std::vector<FormWindow*> QtFront::Windows() const {
    std::vector<FormWindow*> windows;
    for (const Form* form : LoadedForms())
        if (FormWindow* window = WindowOf(*form)) windows.push_back(window);
    return windows;
}

FormWindow* QtFront::MainWindow() const {
    const auto found =
        std::find_if(windows_.begin(), windows_.end(), [](const auto& entry) { return entry.first->Kind() == FormKind::Main; });
    return found == windows_.end() ? nullptr : found->second.get();
}

DockRoom* QtFront::RoomFor(const Form& form) const {
    const FormWindow* main = docksWindows ? MainWindow() : nullptr;
    if (main == nullptr || main->Top() == nullptr) return nullptr;
    for (DockRoom* room : main->Top()->findChildren<DockRoom*>())
        if (room->Takes(ToQt(form.Name()))) return room;
    return nullptr;
}

bool QtFront::MainMinimised() const {
    const FormWindow* main = MainWindow();
    return main != nullptr && main->Top()->isVisible() && main->Top()->isMinimized();
}

void QtFront::WindowActivated(Form& form) {
    FormWindow* window = WindowOf(form);
    if (window == nullptr) return;
    const bool fresh = fresh_.erase(window->Top()) > 0;
    if (ActiveForm() == &form) {
        if (awaited_ == window->Top()) awaited_ = nullptr;
        window->FollowFocus();
        return;
    }
    // This activation is out of date or only results from showing the window, so return the focus to the form that the program wants.
    if (activationPending_ || awaited_ != nullptr || fresh) {
        Activated(form);
        return;
    }
    Deliver([&] {
        if (form.Reachable()) form.UserActivated();
    });
}

void QtFront::WindowUsed(Form& form) {
    awaited_ = nullptr;
    if (const FormWindow* window = WindowOf(form)) fresh_.erase(window->Top());
    if (ActiveForm() == &form || activationPending_) return;
    Deliver([&] {
        if (form.Reachable()) form.UserActivated();
    });
}

void QtFront::RunModal(Form& form) {
    const FormSlotBase* slot = FindFormSlot(form.Name());
    waitModal([slot, &form] { return slot->Peek() != &form || !form.Visible(); });
}

void QtFront::Refresh(Form& form) {
    FormWindow* window = WindowOf(form);
    if (window == nullptr || !form.Visible()) return;
    // The first paint of a window waits for the window system. Hold ticks in the meantime.
    ++held;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // Paints what the events have changed; most of it has been painted with them.
    QCoreApplication::sendPostedEvents(window->Top(), QEvent::UpdateRequest);
    --held;
}

void QtFront::DoEvents() {
    QCoreApplication::processEvents();
    LeaveIfEnding();
}

double QtFront::TextWidth(std::string_view text, const Font& font) {
    const QFontMetricsF metrics(MeasureFont(ToQt(font.name), font.bold));
    return metrics.horizontalAdvance(ToQt(text)) / kMeasurePixels * font.size;
}

void QtFront::Ended() {
    awaited_ = nullptr;
    fresh_.clear();
    WaitLoop::Look();
    if (ended) ended();
}

}  // namespace vatro
