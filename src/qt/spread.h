// SPDX-License-Identifier: MIT
//
// Initial places of the side windows, for users who have not moved them yet. The forms' own default places lie above the main window,
// where they would cover the entry fields of a first-time user.
#pragma once

#include <QRect>
#include <vector>

namespace vatro {

class QtFront;

/// Returns a frame for each of `windows`, none wider or higher than before, arranged around the main window. Windows with one line of
/// large letters go below the main window and keep their aspect ratio; the others go to its right. If the screen has no room there,
/// they go over the upper part of the main window. Everything from the screen row `entry` downwards stays uncovered.
std::vector<QRect> BesideMain(const QRect& screen, const QRect& main, int entry, std::vector<QRect> windows);

/// Moves the visible side windows to these places, as if the user had moved them. Does nothing if no main window is on the screen.
void SpreadWindows(const QtFront& front);

}  // namespace vatro
