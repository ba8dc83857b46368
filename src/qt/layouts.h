// SPDX-License-Identifier: MIT
//
// The table of layouts, with one line for each form of the program.
#pragma once

#include <string_view>

class QWidget;

namespace vatro {

/// Fills an empty widget with the widgets of a layout and resizes it to the layout's size.
using LayoutMaker = void (*)(QWidget*);

/// The layout of the form with this name, or null.
LayoutMaker FindLayout(std::string_view form);
/// Adds a layout for a form that is not part of the program.
void AddLayout(std::string_view form, LayoutMaker make);

}  // namespace vatro
