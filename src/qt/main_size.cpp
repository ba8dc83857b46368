// SPDX-License-Identifier: MIT
#include "main_size.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QWindow>
#include <string>
#include <utility>

#include "numbers.h"
#include "places.h"
#include "platform.h"
#include "qt_front.h"
#include "title_room.h"
#include "window.h"

namespace vatro {

namespace {

constexpr std::string_view kWidthKey = "Bredde";
constexpr std::string_view kHeightKey = "Hojde";
constexpr std::string_view kStateKey = "Tilstand";

constexpr std::string_view kMaximised = "maksimeret";
constexpr std::string_view kFullScreen = "hele";
/// Full screen, and maximised after it.
constexpr std::string_view kMaximisedFullScreen = "maksimeret hele";

/// On a smaller screen than this a first window fills it; on a larger one it takes a part of each side.
constexpr QSize kSmallScreen(1200, 700);
constexpr double kPartOfScreen = 0.85;

/// Properties of a window: the size that its user has given it, and the size that the program or the window manager has made of that. The
/// latter is empty while the window manager changes it, and while the window fills the screen.
constexpr const char* kOwnSize = "vatroOwnSize";
constexpr const char* kMadeSize = "vatroMadeSize";
/// The size in which the window last stood at its own place, and the one to which it has been grown since, if it has.
constexpr const char* kShownSize = "vatroShownSize";
constexpr const char* kGrownSize = "vatroGrownSize";

/// Milliseconds without a change after which the size is stored.
constexpr int kStoreRest = 1000;

int Length(Settings& settings, std::string_view key) {
    return static_cast<int>(qBound(0.0, NumericValue(settings.Read(kWindowSection, key).value_or("")), 100'000.0));
}

/// From now on, the size of the window stands for this one, until the user changes it.
void SetOwnSize(QMainWindow& window, const QSize& own) {
    window.setProperty(kOwnSize, own);
    window.setProperty(kMadeSize, window.size());
}

/// The size of a main window while its content needs no more: its own, or what there is room for at its own place.
QSize UsualSize(const FormWindow& window, const QSize& own, const QRect& room) {
    const QPoint at = window.OwnPlace().topLeft();
    if (!OnScreens(QRect(at, own.boundedTo(room.size())), 0, {room})) return own;
    const QSize left(room.right() + 1 - at.x(), room.bottom() + 1 - at.y());
    // The user may want it partly outside the screen.
    const QSize shown = window.Top()->property(kShownSize).toSize();
    return own.boundedTo(shown.isValid() ? shown : left);
}

/// Lends a main window a place for this size if there is no room for it at its own one, and gives that one back as soon as there is.
void MakeRoom(FormWindow& window, const QSize& size, const QSize& usual, const QRect& room) {
    const QPoint at = window.OwnPlace().topLeft();
    if (size.expandedTo(usual) == usual) {
        if (OnScreens(QRect(at, size), 0, {room})) window.EndLoan();
        return;
    }
    const QPoint last = room.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    const QPoint fits(qMax(room.left(), qMin(at.x(), last.x())), qMax(room.top(), qMin(at.y(), last.y())));
    if (fits == at)
        window.EndLoan();
    else
        window.Lend(QRect(fits, size));
}

}  // namespace

std::optional<QSize> FirstSize(const QSize& layout, const QSize& screen) {
    if (screen.width() < kSmallScreen.width() || screen.height() < kSmallScreen.height()) return {};
    return layout.expandedTo(screen * kPartOfScreen).boundedTo(screen);
}

void Grow(QMainWindow& window, const QSize& size) {
    const QSize own = OwnSize(window);
    const QRect screen = window.screen()->availableGeometry();
    const auto* front = dynamic_cast<const QtFront*>(&InstalledFront());
    FormWindow* its = front != nullptr ? front->MainWindow() : nullptr;
    // The frame of a window that is not on the screen yet is not known, and such a window is not moved.
    const bool moves = its != nullptr && its->Top() == &window && window.isVisible() && !its->Arriving();
    const QSize frame = moves ? window.frameGeometry().size() - window.size() : kLargestFrame;
    const QSize left(screen.right() - window.x(), screen.bottom() - window.y());
    const QSize room = (moves ? screen.size() : left) - frame;
    // A size that the user gives the window stands for what there is room for.
    const bool chosen = window.property(kOwnSize).toSize() != own;
    const bool shown = moves && (chosen || (!its->Lent() && window.property(kGrownSize).toSize() != window.size()));
    if (shown) window.setProperty(kShownSize, window.size());
    const QSize usual = moves ? UsualSize(*its, own, QRect(screen.topLeft(), room)) : own;
    // If the window manager has reduced the window, there is no room for its own size.
    const QSize grown = size.expandedTo(usual).boundedTo(room.expandedTo(own.boundedTo(window.size())));
    if (moves) MakeRoom(*its, grown, usual, QRect(screen.topLeft(), room));
    window.setProperty(kGrownSize, grown == usual ? QSize() : grown);
    if (window.size() != grown) {
        if (moves) its->BeginResize();
        window.resize(grown);
        // After a change of its size the window system would take the place of a new window for that of its content.
        if (!moves && window.windowHandle() != nullptr) window.windowHandle()->setFramePosition(window.pos());
    }
    const bool settling = window.property(kOwnSize).isValid() && !window.property(kMadeSize).toSize().isValid();
    if (!settling) SetOwnSize(window, own);
}

QSize OwnSize(const QMainWindow& window) {
    const QSize own = window.property(kOwnSize).toSize();
    if (!own.isValid()) return window.size();
    const QSize made = window.property(kMadeSize).toSize();
    if (!made.isValid()) return own;
    // The user may have changed only one of them.
    return {window.width() == made.width() ? own.width() : window.width(),
            window.height() == made.height() ? own.height() : window.height()};
}

MainSize::MainSize(QtFront& front, Settings& settings) : settings_(settings), settling_([this](bool /*byManager*/) { Rest(); }) {
    soon_.setSingleShot(true);
    soon_.setInterval(kStoreRest);
    connect(&soon_, &QTimer::timeout, this, &MainSize::Store);
    front.beforeFirstShow = [this](QMainWindow& window) { Restore(window); };
    front.placedFirst = [this](QMainWindow& window) {
        if (fresh_) window.setWindowState(window.windowState() | state_);
    };
    front.extraEntries.emplace_back([this](QMainWindow&, QMenu& menu) {
        fullScreen_ = menu.addAction(QStringLiteral("H&ele skærmen"));
        fullScreen_->setShortcut(QKeySequence(QStringLiteral("F11")));
        fullScreen_->setCheckable(true);
        connect(fullScreen_, &QAction::triggered, this, &MainSize::ToggleFullScreen);
    });
}

void MainSize::Restore(QMainWindow& window) {
    // A window that is shown again has the size that it was left with.
    if (window_ == &window) return;
    window_ = &window;
    fresh_ = true;
    const QSize stored(Length(settings_, kWidthKey), Length(settings_, kHeightKey));
    const QSize room = window.screen()->availableSize();
    if (!stored.isEmpty()) window.resize(stored.expandedTo(window.minimumSizeHint()).boundedTo(room));
    const auto first = FirstSize(window.size(), room);
    if (stored.isEmpty() && first) window.resize(*first);
    // A window of a larger screen fills a small one, as at a first start.
    const bool fills = !first && (stored.isEmpty() || stored.width() > room.width());
    SetOwnSize(window, stored.isEmpty() ? window.size() : stored);
    sized_ = !stored.isEmpty() || first.has_value();
    const std::string state = settings_.Read(kWindowSection, kStateKey).value_or("");
    const bool maximised = state == kMaximised || state == kMaximisedFullScreen;
    const bool whole = state == kFullScreen || state == kMaximisedFullScreen;
    forScreen_ = fills && !maximised;
    maximised_ = fills || maximised;
    state_.setFlag(Qt::WindowMaximized, maximised_);
    state_.setFlag(Qt::WindowFullScreen, whole);
    if (fullScreen_ != nullptr) fullScreen_->setChecked(whole);
    window.installEventFilter(this);
    BeginSettling();
}

void MainSize::ToggleFullScreen() {
    if (window_ == nullptr) return;
    if (!window_->isFullScreen()) maximised_ = window_->isMaximized();
    window_->setWindowState(state_ ^ Qt::WindowFullScreen);
}

bool MainSize::eventFilter(QObject* watched, QEvent* event) {
    if (watched != window_) return false;
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange) soon_.start();
    if (event->type() == QEvent::Resize) settling_.Moved();
    if (event->type() == QEvent::WindowStateChange || (event->type() == QEvent::Paint && std::exchange(fresh_, false))) BeginSettling();
    // Some window managers take the state away from a window that is hidden.
    if (event->type() == QEvent::WindowStateChange && window_->isVisible() && !window_->isMinimized()) {
        state_ = window_->windowState();
        maximised_ = maximised_ || window_->isMaximized();
        // Some window managers keep no window maximised in full screen, and restore it first.
        if (window_->isFullScreen()) state_.setFlag(Qt::WindowMaximized, maximised_);
        if (fullScreen_ != nullptr) fullScreen_->setChecked(window_->isFullScreen());
        // The screen may be lost at any time.
        if (!fresh_) StoreState();
    }
    // The program may end before the window has come to rest.
    if (event->type() == QEvent::Hide && soon_.isActive()) {
        soon_.stop();
        Store();
    }
    return false;
}

void MainSize::BeginSettling() {
    window_->setProperty(kMadeSize, QSize());
    settling_.Begin();
}

void MainSize::Rest() {
    if (window_ == nullptr || !window_->isVisible()) return;
    if (window_->isMinimized() || window_->isMaximized() || window_->isFullScreen()) return;
    SetOwnSize(*window_, OwnSize(*window_));
    maximised_ = false;
    forScreen_ = false;
    sized_ = true;
}

void MainSize::Store() {
    if (window_ == nullptr) return;
    const QSize own = OwnSize(*window_);
    settings_.BeginBatch();
    if (sized_) {
        settings_.Write(kWindowSection, kWidthKey, PlainNumber(own.width()));
        settings_.Write(kWindowSection, kHeightKey, PlainNumber(own.height()));
    }
    StoreState();
    settings_.EndBatch();
}

void MainSize::StoreState() {
    const bool maximised = state_.testFlag(Qt::WindowMaximized) && !forScreen_;
    const bool whole = state_.testFlag(Qt::WindowFullScreen);
    settings_.Write(kWindowSection, kStateKey,
                    whole       ? (maximised ? kMaximisedFullScreen : kFullScreen)
                    : maximised ? kMaximised
                                : std::string_view());
}

}  // namespace vatro
