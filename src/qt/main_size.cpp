// SPDX-License-Identifier: MIT
#include "main_size.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <string>

#include "numbers.h"
#include "platform.h"
#include "qt_front.h"

namespace vatro {

namespace {

constexpr std::string_view kSection = "Vindue";
constexpr std::string_view kWidth = "Bredde";
constexpr std::string_view kHeight = "Hojde";
constexpr std::string_view kState = "Tilstand";

constexpr std::string_view kMaximised = "maksimeret";
constexpr std::string_view kFullScreen = "hele";

/// Milliseconds without a change after which the size is stored.
constexpr int kRest = 1000;

int Length(Settings& settings, std::string_view key) {
    return static_cast<int>(qBound(0.0, NumericValue(settings.Read(kSection, key).value_or("")), 100'000.0));
}

}  // namespace

MainSize::MainSize(QtFront& front, Settings& settings) : settings_(settings) {
    soon_.setSingleShot(true);
    soon_.setInterval(kRest);
    connect(&soon_, &QTimer::timeout, this, &MainSize::Store);
    front.beforeFirstShow = [this](QMainWindow& window) { Restore(window); };
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
    const QSize stored(Length(settings_, kWidth), Length(settings_, kHeight));
    const QSize room = window.screen()->availableSize();
    if (!stored.isEmpty()) window.resize(stored.expandedTo(window.minimumSizeHint()).boundedTo(room));
    const std::string state = settings_.Read(kSection, kState).value_or("");
    if (state == kMaximised) window.setWindowState(window.windowState() | Qt::WindowMaximized);
    if (state == kFullScreen) window.setWindowState(window.windowState() | Qt::WindowFullScreen);
    if (fullScreen_ != nullptr) fullScreen_->setChecked(state == kFullScreen);
    window.installEventFilter(this);
}

void MainSize::ToggleFullScreen() {
    if (window_ != nullptr) window_->setWindowState(window_->windowState() ^ Qt::WindowFullScreen);
}

bool MainSize::eventFilter(QObject* watched, QEvent* event) {
    if (watched != window_) return false;
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange) soon_.start();
    if (event->type() == QEvent::WindowStateChange && fullScreen_ != nullptr) fullScreen_->setChecked(window_->isFullScreen());
    // The program may end before the window has come to rest.
    if (event->type() == QEvent::Hide && soon_.isActive()) {
        soon_.stop();
        Store();
    }
    return false;
}

void MainSize::Store() {
    if (window_ == nullptr || window_->isMinimized()) return;
    const bool whole = window_->isFullScreen();
    const bool large = whole || window_->isMaximized();
    const QSize size = large ? window_->normalGeometry().size() : window_->size();
    settings_.BeginBatch();
    if (!size.isEmpty()) {
        settings_.Write(kSection, kWidth, PlainNumber(size.width()));
        settings_.Write(kSection, kHeight, PlainNumber(size.height()));
    }
    settings_.Write(kSection, kState, whole ? kFullScreen : large ? kMaximised : std::string_view());
    settings_.EndBatch();
}

}  // namespace vatro
