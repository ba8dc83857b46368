// SPDX-License-Identifier: MIT
//
// Which page of the handbook explains a window.
#pragma once

#include <string_view>

namespace vatro {

/// The page, such as "vinduer.html#note", for the form of this name, or for the page of a first start ("FirstPage"). For any other window,
/// such as a message box, the page of the messages.
std::string_view HelpPageOf(std::string_view form);

}  // namespace vatro
