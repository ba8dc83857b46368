// SPDX-License-Identifier: MIT
#include "desktop.h"

#include "appearance.h"
#include "qt_front.h"
#include "schemes.h"

namespace vatro {

Desktop::Desktop(QtFront& front, QtHelp& help) : typing_(front), helpKey_(front, help) {
    // For the windows before the main one too, which knows the user's scheme.
    UseScheme(Scheme::Desktop);
    front.fitToScreen = true;
    front.filterPaste = true;
    front.keepKeys = true;
    front.desktopHabits = true;
    front.extraEntries.emplace_back([](QMainWindow& window, QMenu& menu) { new Appearance(window, menu); });
}

}  // namespace vatro
