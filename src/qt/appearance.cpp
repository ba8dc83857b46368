// SPDX-License-Identifier: MIT
#include "appearance.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <utility>

#include "bind_common.h"
#include "dock_room.h"
#include "fields.h"
#include "frame/settings_table.h"
#include "main_size.h"
#include "numbers.h"
#include "platform.h"
#include "qt_text.h"
#include "schemes.h"
#include "title_room.h"

namespace vatro {

namespace {

constexpr std::string_view kSun = "Solskin";
constexpr std::string_view kNight = "Nat";
constexpr std::string_view kTextSize = "TekstStr";

/// Each step changes the text size by this fraction.
constexpr double kTextStep = 0.1;
/// Milliseconds after which a window that is being shown has its frame; before that it would be misplaced by another size.
constexpr int kFrameTime = 200;
/// Property that stores a widget's font as its layout sets it.
constexpr const char* kOwnFont = "vatroOwnFont";

/// Whether this is a window with texts of its own, and not a menu or the list of a combo box, whose owner gives it its font.
bool HasOwnText(const QWidget& window) {
    const Qt::WindowType type = window.windowType();
    return window.isWindow() && (type == Qt::Window || type == Qt::Dialog || type == Qt::Tool);
}

/// Activates the layouts from the innermost outwards, so that new font sizes reach the window's layout even before the window is shown.
void ActivateLayouts(const QWidget& window) {
    const QList<QWidget*> inside = window.findChildren<QWidget*>();
    for (auto widget = inside.crbegin(); widget != inside.crend(); ++widget)
        if ((*widget)->layout() != nullptr && (*widget)->window() == &window) (*widget)->layout()->activate();
    if (window.layout() != nullptr) window.layout()->activate();
}

bool FitsOnScreen(const QWidget& window) {
    if (window.layout() == nullptr) return true;
    ActivateLayouts(window);
    const QSize least = window.layout()->totalMinimumSize() + kLargestFrame;
    return least.boundedTo(window.screen()->availableSize()) == least;
}

/// Gives widgets their own fonts in another size.
void ScaleFonts(const QList<QWidget*>& widgets, double factor, bool bold) {
    for (QWidget* widget : widgets) {
        QFont font = widget->property(kOwnFont).value<QFont>();
        font.setPointSizeF(font.pointSizeF() * factor);
        if (bold) font.setBold(true);
        widget->setFont(font);
        if (auto* button = qobject_cast<QPushButton*>(widget)) WidenButton(*button);
    }
}

}  // namespace

Appearance::Appearance(QMainWindow& window, QMenu& menu) : QObject(&window), window_(window) {
    sun_ = AddScheme(menu, QStringLiteral("&Solskin"), kSun);
    night_ = AddScheme(menu, QStringLiteral("&Nat"), kNight);
    AddEntry(menu, QStringLiteral("St&ørre tekst"), QKeySequence(QStringLiteral("Ctrl++")), +1);
    AddEntry(menu, QStringLiteral("&Mindre tekst"), QKeySequence(QStringLiteral("Ctrl+-")), -1);
    AddEntry(menu, QStringLiteral("No&rmal tekst"), QKeySequence(QStringLiteral("Ctrl+0")), 0);

    Settings& settings = platform().settings;
    step_ = static_cast<int>(qBound<double>(kSmallest, NumericValue(settings.Read(setting::kSettings, kTextSize).value_or("")), kLargest));
    if (Sun() || Night() || step_ != 0) Apply();
    qApp->installEventFilter(this);
    soon_.setSingleShot(true);
    soon_.setInterval(kFrameTime);
    connect(&soon_, &QTimer::timeout, this, &Appearance::GrowToContent);
    for (const auto& [chosen, other] : {std::pair(sun_, night_), std::pair(night_, sun_)})
        connect(chosen, &QAction::triggered, this, [this, other = other] {
            other->setChecked(false);
            Apply();
            Store();
        });
}

QAction* Appearance::AddScheme(QMenu& menu, const QString& caption, std::string_view key) {
    QAction* scheme = menu.addAction(caption);
    scheme->setObjectName(QStringLiteral("appearance") + ToQt(key));
    scheme->setCheckable(true);
    scheme->setChecked(platform().settings.Read(setting::kSettings, key) == "True");
    return scheme;
}

bool Appearance::Sun() const {
    return sun_->isChecked();
}

bool Appearance::Night() const {
    return night_->isChecked() && !Sun();
}

QAction* Appearance::AddEntry(QMenu& menu, const QString& caption, const QKeySequence& key, int step) {
    QAction* action = menu.addAction(caption);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, step] { SetTextSize(step == 0 ? 0 : step_ + step); });
    return action;
}

void Appearance::SetTextSize(int step) {
    step_ = qBound(kSmallest, step, kLargest);
    Apply();
    Store();
}

void Appearance::Apply() {
    UseScheme(Sun() ? Scheme::Sun : Night() ? Scheme::Night : Scheme::Desktop);
    Dress(window_);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != &window_ && HasOwnText(*window) && window->testAttribute(Qt::WA_WState_Polished)) Dress(*window);
    GrowToContent();
}

void Appearance::Dress(QWidget& window) const {
    QList<QWidget*> widgets{&window};
    for (QWidget* widget : window.findChildren<QWidget*>())
        // Windows that belong to this one are dressed on their own.
        if (widget->window() == &window || qobject_cast<QMenu*>(widget) != nullptr) widgets.append(widget);
    // Store all fonts before changing the first, because widgets inherit their parent's font.
    for (QWidget* widget : widgets)
        if (!widget->property(kOwnFont).isValid()) widget->setProperty(kOwnFont, widget->font());
    // A dialogue grows only as far as the screen has room for its fields.
    int step = step_;
    do ScaleFonts(widgets, 1 + kTextStep * step, Sun());
    while (&window != &window_ && --step >= 0 && !FitsOnScreen(window));
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    // A window is polished before it asks for the size of its content.
    if (event->type() == QEvent::Polish && watched != &window_ && (Sun() || step_ != 0)) {
        auto* window = qobject_cast<QWidget*>(watched);
        if (window != nullptr && HasOwnText(*window)) Dress(*window);
    }
    if (event->type() == QEvent::Show && watched == &window_ && step_ != 0) {
        GrowToContent();
        // The frame is not known yet.
        soon_.start();
    }
    // A window has been docked beside the log.
    if (event->type() == QEvent::ShowToParent && step_ != 0 && qobject_cast<DockRoom*>(watched) != nullptr) soon_.start();
    // The program has ended; the window itself may be deleted later.
    if (event->type() == QEvent::Hide && watched == &window_ && !event->spontaneous()) qApp->removeEventFilter(this);
    return false;
}

void Appearance::GrowToContent() {
    const auto* room = qobject_cast<ScrollRoom*>(window_.centralWidget());
    if (room == nullptr || window_.isMaximized() || window_.isFullScreen()) return;
    ActivateLayouts(window_);
    QSize needed = room->Needed();
    for (const DockRoom* dock : room->findChildren<DockRoom*>()) needed.rwidth() = qMax(needed.width(), dock->WantedWidth());
    Grow(window_, step_ > 0 ? window_.size() - room->size() + needed : QSize());
}

void Appearance::Store() const {
    Settings& settings = platform().settings;
    settings.Write(setting::kSettings, kSun, Sun() ? "True" : "False");
    settings.Write(setting::kSettings, kNight, Night() ? "True" : "False");
    settings.Write(setting::kSettings, kTextSize, PlainNumber(step_));
}

}  // namespace vatro
