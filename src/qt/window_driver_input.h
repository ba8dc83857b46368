// SPDX-License-Identifier: MIT
//
// The keys and the mouse of the window driver: real events on real windows.
#pragma once

#include <QPoint>
#include <Qt>

#include "driver.h"

class QScrollBar;
class QString;
class QWidget;
class QWindow;

namespace vatro {

/// Presses and releases the key, as long as the window exists.
void Tap(QWindow& window, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers);
/// The same; fails if there is no such key.
void Tap(QWindow& window, const KeyStroke& key);

/// Presses and releases the mouse button, as long as the window exists.
void ClickAt(QWidget& widget, const QPoint& at);
void DoubleClickAt(QWidget& widget, const QPoint& at);
/// Sends the release that must follow a press. If the press opens a window, call this before the scenario continues there: a real user
/// would have released the button by then, and otherwise the window system would not accept another press.
void LetGo();

/// The middle of a scroll bar's slider.
QPoint SlideOf(const QScrollBar& bar);

}  // namespace vatro
