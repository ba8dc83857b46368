// SPDX-License-Identifier: MIT
//
// The forms, controls and menu items that a scenario names. All names are in the code page.
#pragma once

#include <string>
#include <string_view>

#include "forms.h"

namespace vatro {

/// "frmMain.Text1(1)" in its pieces.
struct ControlName {
    std::string form;
    std::string control;
    /// -1 without one.
    int index = -1;
};

/// Fails with CannotDeliver if the text is no name of a control; whether there is such a control is not asked.
ControlName ParseControlName(std::string_view text);

/// Whether the text can be the name of a control: form, point, name.
bool IsControlName(std::string_view text);

/// The form of this name, or nothing if it is not loaded. Fails with CannotDeliver if the program has no such form.
Form* FindForm(std::string_view name);

/// The control of a loaded form, or nothing if its form is not loaded. Fails with CannotDeliver if there is no such
/// form, or the loaded form has no such control.
Control* FindControl(std::string_view name);

/// The menu item of this name among the loaded forms. Fails with CannotDeliver if there is none.
MenuItem& FindMenuItem(std::string_view name);

/// The toolbar among the loaded forms. Fails with CannotDeliver if there is none.
Toolbar& FindToolbar();

/// "frmMain.Text1(1)", in UTF-8.
std::string NameOf(const Control& control);

}  // namespace vatro
