// SPDX-License-Identifier: MIT
//
// The places of the side windows before anybody has chosen them. Those that the forms begin with lie above the main window;
// operators who see the program for the first time would have to clear the entry fields by mouse.
#pragma once

#include <QRect>
#include <vector>

namespace vatro {

class QtFront;

/// Frames beside that of the main window, one for each of `windows`, none wider or higher than it was. Windows of one line
/// of large letters go below the main window and keep their shape, others to its right; where the screen has no room there,
/// above the line `entry` of the screen, from which on the main window stays free.
std::vector<QRect> BesideMain(const QRect& screen, const QRect& main, int entry, std::vector<QRect> windows);

/// Puts the side windows that are shown there, as if the user had. Nothing without a main window on the screen.
void SpreadWindows(const QtFront& front);

}  // namespace vatro
