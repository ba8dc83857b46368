// SPDX-License-Identifier: MIT
#include "entry/main_menu.h"

namespace vatro {

std::vector<MenuItem*> MainMenu::BandEntries() {
    std::vector<MenuItem*> entries;
    for (MenuItem& entry : mnuIndstillingerBånd)
        if (!entry.Separator()) entries.push_back(&entry);
    return entries;
}

}  // namespace vatro
