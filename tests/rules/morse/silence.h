// SPDX-License-Identifier: MIT
//
// Morse elements for tests.
#pragma once

#include <cstddef>
#include <string>

namespace vatro {

/// A pause of this many dots.
inline std::string Silence(int slots) {
    return std::string(static_cast<std::size_t>(slots), ' ');
}

}  // namespace vatro
