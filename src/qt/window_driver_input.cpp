// SPDX-License-Identifier: MIT
#include "window_driver_input.h"

#include <QPointer>
#include <QScrollBar>
#include <QString>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "qt_text.h"

namespace vatro {

namespace {

Qt::Key QtKey(const KeyStroke& key) {
    static const std::array<std::pair<std::string_view, Qt::Key>, 14> kNames{{{"Enter", Qt::Key_Return},
                                                                              {"Esc", Qt::Key_Escape},
                                                                              {"Space", Qt::Key_Space},
                                                                              {"Tab", Qt::Key_Tab},
                                                                              {"Backspace", Qt::Key_Backspace},
                                                                              {"Delete", Qt::Key_Delete},
                                                                              {"Home", Qt::Key_Home},
                                                                              {"End", Qt::Key_End},
                                                                              {"Left", Qt::Key_Left},
                                                                              {"Right", Qt::Key_Right},
                                                                              {"Up", Qt::Key_Up},
                                                                              {"Down", Qt::Key_Down},
                                                                              {"PageUp", Qt::Key_PageUp},
                                                                              {"PageDown", Qt::Key_PageDown}}};
    if (key.name.empty()) return static_cast<Qt::Key>(ToQt({&key.character, 1}).toUpper().at(0).unicode());
    for (const auto& [name, code] : kNames)
        if (key.name == name) return name == "Tab" && key.shift ? Qt::Key_Backtab : code;
    if (key.name[0] == 'F') return static_cast<Qt::Key>(Qt::Key_F1 + std::stoi(key.name.substr(1)) - 1);
    throw CannotDeliver("there is no key " + key.name);
}

QString KeyText(const KeyStroke& key) {
    if (key.ctrl || key.alt) return {};
    if (key.name.empty()) return ToQt({&key.character, 1});
    if (key.name == "Enter") return QStringLiteral("\r");
    if (key.name == "Esc") return QStringLiteral("\x1b");
    if (key.name == "Space") return QStringLiteral(" ");
    if (key.name == "Backspace") return QStringLiteral("\b");
    return {};
}

/// The release that LetGo has to send, if any.
std::function<void()> owedRelease;

}  // namespace

void Tap(QWindow& window, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWindow> alive(&window);
    QTest::sendKeyEvent(QTest::Press, &window, key, text, modifiers);
    if (alive != nullptr) QTest::sendKeyEvent(QTest::Release, alive, key, text, modifiers);
}

void Tap(QWindow& window, const KeyStroke& key) {
    Qt::KeyboardModifiers modifiers;
    if (key.shift) modifiers |= Qt::ShiftModifier;
    if (key.ctrl) modifiers |= Qt::ControlModifier;
    if (key.alt) modifiers |= Qt::AltModifier;
    Tap(window, QtKey(key), KeyText(key), modifiers);
}

void ClickAt(QWidget& widget, const QPoint& at) {
    const QPointer<QWindow> window(widget.window()->windowHandle());
    if (window == nullptr || !widget.isVisible()) throw CannotDeliver("a widget is not shown");
    const QPoint there = widget.mapTo(widget.window(), at);
    owedRelease = [window, there] {
        if (window != nullptr) QTest::mouseRelease(window.data(), Qt::LeftButton, {}, there);
    };
    QTest::mousePress(window.data(), Qt::LeftButton, {}, there);
    LetGo();
}

void DoubleClickAt(QWidget& widget, const QPoint& at) {
    QWindow* const window = widget.window()->windowHandle();
    const QPoint there = widget.mapTo(widget.window(), at);
    owedRelease = [window, there] { QTest::mouseRelease(window, Qt::LeftButton, {}, there); };
    QTest::mouseDClick(window, Qt::LeftButton, {}, there);
    // The release has already been sent.
    owedRelease = {};
}

void LetGo() {
    if (owedRelease) std::exchange(owedRelease, {})();
}

QPoint SlideOf(const QScrollBar& bar) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    if (bar.orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar).center();
}

}  // namespace vatro
