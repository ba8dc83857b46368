// SPDX-License-Identifier: MIT
//
// Finds the forms, controls and menu items that a scenario names. All names are in the code page.
#pragma once

#include <string>
#include <string_view>

#include "forms.h"

namespace vatro {

/// The parts of a name such as "frmMain.Text1(1)".
struct ControlName {
    std::string form;
    std::string control;
    /// -1 if there is none.
    int index = -1;
};

/// Parses a control name without checking whether the control exists. Fails with CannotDeliver if the text is not such a name.
ControlName ParseControlName(std::string_view text);

/// Whether the text has the form of a control name: form, dot, name.
bool IsControlName(std::string_view text);

/// The form with this name, or null if it is not loaded. Fails with CannotDeliver if the program has no such form.
Form* FindForm(std::string_view name);

/// The control with this name, or null if its form is not loaded. Fails with CannotDeliver if the program has no such form or the
/// loaded form has no such control.
Control* FindControl(std::string_view name);

/// The menu item with this name on any loaded form. Fails with CannotDeliver if there is none.
MenuItem& FindMenuItem(std::string_view name);

/// The toolbar of the loaded forms. Fails with CannotDeliver if there is none.
Toolbar& FindToolbar();

/// The full name in UTF-8, such as "frmMain.Text1(1)".
std::string NameOf(const Control& control);

}  // namespace vatro
