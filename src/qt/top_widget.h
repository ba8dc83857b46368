// SPDX-License-Identifier: MIT
//
// Makes the top-level widget of a form from its layout. A main form's menu, toolbar and status bar are made from the form's own
// description.
#pragma once

#include <Qt>
#include <functional>
#include <vector>

class QMainWindow;
class QMenu;
class QWidget;

namespace vatro {

class Bindings;
class Form;

/// Whether the window leaves the keyboard to the others. `desktop`, here and below: whether it has the habits of a desktop.
bool RefusesKeys(const Form& form, bool desktop);

/// The flags of the form's window when it is not docked.
Qt::WindowFlags FlagsOf(const Form& form, bool desktop);

/// The widget belongs to `owner`, the window above which it stays, if any. `bindings` gets a message if the form has no layout.
QWidget* MakeTop(Form& form, bool desktop, QWidget* owner, Bindings& bindings);

/// Whether this is a window that MakeTop has made.
bool IsTop(const QWidget& widget);

/// Adds the menu of the desktop's own commands, if there are any, so that the other menus stay as the form describes them.
void AddExtraMenu(QMainWindow& window, const std::vector<std::function<void(QMainWindow&, QMenu&)>>& entries, Bindings& bindings);

}  // namespace vatro
