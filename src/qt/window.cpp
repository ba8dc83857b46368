// SPDX-License-Identifier: MIT
#include "window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <cmath>

#include "bar_widgets.h"
#include "binder.h"
#include "column_head.h"
#include "deliver.h"
#include "dock_room.h"
#include "fields.h"
#include "input.h"
#include "layouts.h"
#include "qt_front.h"
#include "qt_text.h"
#include "refusal_flash.h"
#include "title_room.h"

namespace vatro {

namespace {

Qt::WindowFlags Flags(FormKind kind) {
    switch (kind) {
        case FormKind::Main:
            return Qt::Window;
        case FormKind::Tool:
        case FormKind::FixedTool:
            return Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        case FormKind::Dialog:
        case FormKind::FixedDialog:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        case FormKind::Splash:
            return Qt::SplashScreen | Qt::FramelessWindowHint;
    }
    return Qt::Window;
}

/// Milliseconds after which a window that has been shown or moved by the program is moved only by the user.
constexpr int kSettling = 1000;

/// Whether the window first has the size that its layout asks for.
bool HasDialogSize(FormKind kind) {
    return kind == FormKind::Dialog || kind == FormKind::FixedDialog || kind == FormKind::FixedTool;
}

/// Lengths are at least one pixel.
int ToLength(int twips) {
    return qMax(1, ToPixels(twips));
}

}  // namespace

int ToPixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

FormWindow::FormWindow(Form& form, QWidget* owner, QtFront& front) : form_(form), front_(front), bindings_(Surroundings()), owner_(owner) {
    Build(owner);
    BindForm(form, *top_, bindings_);
    if (RefusesKeys())
        for (QWidget* widget : top_->findChildren<QWidget*>()) widget->setFocusPolicy(Qt::NoFocus);
    AddExtraMenu();
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
        if (child->isWindow() && child->property("vatroForm").toBool()) child->setParent(nullptr, child->windowFlags());
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

void FormWindow::Build(QWidget* owner) {
    const QString name = ToQt(form_.Name());
    auto* content = new QWidget;
    const LayoutMaker make = FindLayout(form_.Name());
    if (make != nullptr)
        make(content);
    else
        bindings_.AddProblem(name + QStringLiteral(" has no layout"));
    // The user may make a side window as small as wanted, and it keeps that size at the next start.
    if (form_.Kind() == FormKind::Tool && content->layout() != nullptr) content->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    if (form_.Kind() == FormKind::Main) {
        auto* window = new QMainWindow(owner, Flags(form_.Kind()));
        const QSize size = content->size();
        window->setCentralWidget(new ScrollRoom(*content));
        AddBars(form_, *window);
        window->resize(size);
        top_ = window;
    } else {
        content->setParent(owner, Flags(form_.Kind()));
        // The window always has the size of its layout, whatever the desktop's font.
        if (form_.Kind() == FormKind::FixedDialog && content->layout() != nullptr)
            content->layout()->setSizeConstraint(QLayout::SetFixedSize);
        top_ = content;
    }
    content->setObjectName(name);
    if (RefusesKeys()) top_->setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    top_->setProperty("vatroForm", true);
    if (form_.Kind() == FormKind::Tool || form_.Kind() == FormKind::Splash) top_->setAttribute(Qt::WA_ShowWithoutActivating);
    captionHead_ = top_->findChild<ColumnHead*>(QStringLiteral("FormCaption"));
}

/// The desktop's own commands are in a menu of their own, so that the other menus stay as the form describes them.
void FormWindow::AddExtraMenu() {
    auto* window = qobject_cast<QMainWindow*>(top_.data());
    if (window == nullptr || front_.extraEntries.empty() || window->menuBar()->actions().isEmpty()) return;
    auto* menu = new QMenu(QStringLiteral("&Ekstra"), window->menuBar());
    menu->menuAction()->setObjectName(QStringLiteral("extraMenu"));
    window->menuBar()->insertMenu(window->menuBar()->actions().constLast(), menu);
    ReturnKeysAfter(*menu, bindings_);
    for (const auto& add : front_.extraEntries) add(*window, *menu);
}

bool FormWindow::RefusesKeys() const {
    return front_.desktopHabits && form_.onlyShows;
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
    FollowPlace();
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
    placing_ = true;
    top_->hide();
    room.Take(*top_);
    placing_ = false;
    arriving_ = false;
    loan_.reset();
    room_ = &room;
    FollowVisible();
}

void FormWindow::LeaveDock() {
    room_->Release(*top_);
    room_ = nullptr;
    Qt::WindowFlags flags = Flags(form_.Kind());
    flags.setFlag(Qt::WindowDoesNotAcceptFocus, RefusesKeys());
    top_->setParent(owner_, flags);
    place_.reset();
    FollowPlace();
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

WindowPlace FormWindow::Told() const {
    return {form_.Left(), form_.Top(), form_.Width(), form_.Height()};
}

void FormWindow::FollowPlace() {
    const WindowPlace told = Told();
    // Do not move a window that is not on the screen yet: its frame would be misplaced.
    if (!form_.Placed() || told == place_ || arriving_ || Docked()) return;
    // If only the size has changed, keep the position that the user or the window manager has chosen.
    const bool moved = !place_ || told.left != place_->left || told.top != place_->top;
    place_ = told;
    if (placing_) return;
    placing_ = true;
    placed_ = true;
    if (!top_->isMinimized()) {
        const QPoint at(ToPixels(told.left), ToPixels(told.top));
        if (moved) {
            loan_.reset();
            top_->move(at);
        }
        QSize size(ToLength(told.width), ToLength(told.height));
        // A lent place may be smaller, and keeps its proportions.
        if (loan_) size = QSize(size.width() * loan_->height() / size.height(), loan_->height());
        if (top_->size() != size) SetSize(size);
        if (loan_) Lend(QRect(top_->pos(), size));
    }
    placing_ = false;
    if (top_->isVisible()) TellPlace();
}

QRect FormWindow::OwnPlace() const {
    return {ToPixels(form_.Left()), ToPixels(form_.Top()), ToLength(form_.Width()), ToLength(form_.Height())};
}

void FormWindow::Lend(const QRect& place) {
    if (loan_ == place) return;
    placing_ = true;
    if (top_->pos() != place.topLeft()) top_->move(place.topLeft());
    if (top_->size() != place.size()) SetSize(place.size());
    placing_ = false;
    loan_ = place;
    loanSince_.start();
}

void FormWindow::EndLoan() {
    if (!loan_) return;
    loan_.reset();
    place_.reset();
    FollowPlace();
}

bool FormWindow::OnLoan() {
    if (!loan_) return false;
    // The size of a main window is its own affair.
    const bool main = form_.Kind() == FormKind::Main;
    const QRect now(top_->pos(), main ? loan_->size() : top_->size());
    // Moves at first are those of the window manager.
    if (loanSince_.elapsed() < kSettling) loan_ = now;
    if (now == loan_) return true;
    loan_.reset();
    return false;
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
    placing_ = true;
    if (!placed_) FirstPlace();
    if (auto* window = qobject_cast<QMainWindow*>(top_.data()); window != nullptr && front_.beforeFirstShow)
        front_.beforeFirstShow(*window);
    if (front_.beforeShow) front_.beforeShow(*this);
    if (form_.Kind() == FormKind::Main && front_.fitToScreen) FitToScreen();
    PutOnScreen();
    if (form_.Kind() == FormKind::Main) front_.FollowAll();
}

void FormWindow::PutOnScreen() {
    placing_ = true;
    if (form_.Kind() == FormKind::Tool && top_->windowHandle() != nullptr) {
        const QWidget* owner = top_->parentWidget();
        owned_ = !front_.MainMinimised();
        top_->windowHandle()->setTransientParent(owned_ && owner != nullptr ? owner->windowHandle() : nullptr);
    }
    // A window that was minimised with its owner and then hidden would be shown minimised again, and its owner with it.
    if (form_.State() != WindowState::Minimised) top_->setWindowState(top_->windowState() & ~Qt::WindowMinimized);
    arriving_ = true;
    top_->show();
    placing_ = false;
    top_->windowHandle()->installEventFilter(this);
    if (top_->windowHandle()->isExposed()) Arrive();
    front_.Shown(*this);
}

void FormWindow::FollowOwner() {
    if (form_.Kind() != FormKind::Tool || !form_.Visible() || !top_->isVisible() || Docked()) return;
    const bool alone = front_.MainMinimised();
    const bool takenAlong = top_->isMinimized() && form_.State() != WindowState::Minimised;
    if (!takenAlong && (alone || owned_)) return;
    // The owner of a window can only be changed while the window is hidden.
    placing_ = true;
    const QPoint at = top_->pos();
    top_->hide();
    top_->move(at);
    PutOnScreen();
}

void FormWindow::Arrive() {
    arriving_ = false;
    FollowPlace();
    TellPlace();
}

int FormWindow::TitleHeight() const {
    return top_->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, top_);
}

void FormWindow::FitToScreen() {
    if (top_->isMaximized() || top_->isFullScreen()) return;
    const QRect room = top_->screen()->availableGeometry();
    const QSize left(room.right() - top_->x(), room.bottom() - top_->y() - TitleHeight());
    top_->resize(top_->size().boundedTo(left.expandedTo(top_->minimumSizeHint())));
}

void FormWindow::FirstPlace() {
    const QRect screen = top_->screen()->availableGeometry();
    // Use the size that the layout asks for; Qt does not apply it before the window is shown.
    if (HasDialogSize(form_.Kind())) {
        top_->ensurePolished();
        SetSize(top_->sizeHint().boundedTo(screen.size()));
    }
    const QWidget* owner = top_->parentWidget();
    const bool above = form_.Kind() != FormKind::FixedTool && owner != nullptr && owner->isVisible();
    const QPoint middle = (above ? owner->frameGeometry() : screen).center() - QRect(QPoint(), top_->size()).center();
    const QPoint last = screen.bottomRight() - QPoint(top_->width(), top_->height() + TitleHeight());
    top_->move(qMax(screen.left(), qMin(middle.x(), last.x())), qMax(screen.top(), qMin(middle.y(), last.y())));
    placed_ = true;
}

void FormWindow::SetSize(const QSize& size) {
    if (form_.Kind() == FormKind::FixedTool)
        top_->setFixedSize(size);
    else
        top_->resize(size);
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

void FormWindow::MoveByUser(int left, int top, int width, int height) {
    placing_ = true;
    top_->move(ToPixels(left), ToPixels(top));
    SetSize({ToLength(width), ToLength(height)});
    placing_ = false;
    TellPlace({left, top, width, height});
}

void FormWindow::TellPlace() {
    // A form without a place of its own is not told where the front has put its window.
    if (form_.Placed()) TellPlace(Told());
}

void FormWindow::TellPlace(const WindowPlace& finer) {
    if (placing_ || arriving_ || Docked() || !top_->isVisible() || top_->isMinimized() || OnLoan()) return;
    // On a desktop a window keeps its place while it fills the screen.
    if (front_.desktopHabits && (top_->isMaximized() || top_->isFullScreen())) return;
    // If the form changes its new place, that is shown but not reported back; otherwise form and window system might correct each other
    // for ever.
    if (telling_) return;
    const auto at = [](int pixels, int twips) { return ToPixels(twips) == pixels ? twips : pixels * kTwipsPerPixel; };
    const auto length = [](int pixels, int twips) { return ToLength(twips) == pixels ? twips : pixels * kTwipsPerPixel; };
    const WindowPlace now{at(top_->pos().x(), finer.left), at(top_->pos().y(), finer.top), length(top_->width(), finer.width),
                          length(top_->height(), finer.height)};
    if (now == Told()) return;
    place_ = now;
    telling_ = true;
    const QPointer<FormWindow> self(this);
    Deliver([&] { form_.UserPlaced(now.left, now.top, now.width, now.height); });
    if (self != nullptr) telling_ = false;
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
        if (used && !RefusesKeys()) front_.WindowUsed(form_);
        if (event->type() == QEvent::Expose && arriving_ && top_->windowHandle()->isExposed()) Arrive();
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
            TellPlace();
            return false;
        case QEvent::EnabledChange:
            FollowEnabled();
            return false;
        case QEvent::WindowStateChange:
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
