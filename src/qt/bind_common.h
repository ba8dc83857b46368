// SPDX-License-Identifier: MIT
//
// What all pairs of control and widget have in common.
#pragma once

#include <QWidget>

#include "controls.h"

class QPushButton;

namespace vatro {

/// Shows whether the control can be used, is shown, takes the focus, and its tooltip.
void PushState(const Control& control, QWidget& widget);
/// Takes over one of these that has changed.
void FollowState(const Control& control, QWidget& widget, Aspect aspect);
/// The font that the program names, as it is drawn here: the list's font of old is the system's fixed-pitch one.
QFont ToQt(const Font& font, const QFont& otherwise);
/// A long caption keeps its distance from the edges of its button, as a short one does.
void WidenButton(QPushButton& button);
/// The fixed-pitch font of lists and fields, readable at arm's length.
QFont FixedPitchFont();

}  // namespace vatro
