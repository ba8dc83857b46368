// SPDX-License-Identifier: MIT
//
// The colours in which everything must be legible.
#pragma once

#include <QPalette>
#include <utility>
#include <vector>

#include "schemes.h"

namespace vatro {

inline std::vector<std::pair<const char*, QPalette>> AllSchemes() {
    return {{"light", QPalette(QColor(0xef, 0xef, 0xef))},
            {"dark", QPalette(QColor(0x30, 0x30, 0x30))},
            {"sun", SunPalette()},
            {"night", NightPalette()}};
}

}  // namespace vatro
