// SPDX-License-Identifier: MIT
//
// What the bindings of all kinds of control share.
#pragma once

#include <QWidget>

#include "controls.h"

class QPushButton;

namespace vatro {

/// Shows the control's common state: enabled, visible, whether it takes the focus, and its tooltip.
void PushState(const Control& control, QWidget& widget);
/// Updates the part of the common state that has changed.
void FollowState(const Control& control, QWidget& widget, Aspect aspect);
/// Converts a font of the program to a font of the desktop. The classic list font becomes the system's fixed-pitch font.
QFont ToQt(const Font& font, const QFont& otherwise);
/// Widens a button with a long caption, so that the caption keeps its distance from the edges.
void WidenButton(QPushButton& button);
/// The fixed-pitch font for lists and fields, readable at arm's length.
QFont FixedPitchFont();

}  // namespace vatro
