// SPDX-License-Identifier: MIT
#include "desktop.h"

#include "qt_front.h"

namespace vatro {

Desktop::Desktop(QtFront& front) : typing_(front) {
    front.fitToScreen = true;
    front.filterPaste = true;
    front.keepKeys = true;
}

}  // namespace vatro
