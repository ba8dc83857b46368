// SPDX-License-Identifier: MIT
//
// The list of layouts: one line for each form of the program.
#pragma once

#include <string_view>

class QWidget;

namespace vatro {

/// Puts the widgets of a layout into an empty widget and gives it the layout's size.
using LayoutMaker = void (*)(QWidget*);

/// The layout of the form of this name, or nothing.
LayoutMaker FindLayout(std::string_view form);
/// Adds a layout, of a form that is not part of the program.
void AddLayout(std::string_view form, LayoutMaker make);

}  // namespace vatro
