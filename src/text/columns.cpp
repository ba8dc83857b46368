// SPDX-License-Identifier: MIT
#include "columns.h"

namespace vatro {

std::string LeftAligned(std::string_view text, std::size_t width) {
    std::string field(text.substr(0, width));
    field.resize(width, ' ');
    return field;
}

}  // namespace vatro
