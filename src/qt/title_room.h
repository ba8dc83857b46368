// SPDX-License-Identifier: MIT
//
// Room for the frame and the title of a window. A window manager cuts a title that is wider than the window below it.
#pragma once

#include <QSize>

class QString;
class QWidget;

namespace vatro {

/// What a window manager adds to a window at most.
inline constexpr QSize kLargestFrame(20, 40);

/// The width of a window at which its title is probably shown whole. The real frame, with its font and buttons, is not known.
int WidthForTitle(const QString& title);
/// Makes a dialogue or message box at least that wide. Its layout must be complete.
void KeepTitleWhole(QWidget& dialog);

}  // namespace vatro
