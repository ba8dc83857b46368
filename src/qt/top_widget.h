// SPDX-License-Identifier: MIT
//
// Makes the top-level widget of a form from its layout. A main form's menu, toolbar and status bar are made from the form's own
// description.
#pragma once

#include <Qt>

class QMainWindow;
class QWidget;

namespace vatro {

class Bindings;
class Form;
class QtFront;

/// Whether the window leaves the keyboard to the others.
bool RefusesKeys(const Form& form, const QtFront& front);

/// The flags of the form's window when it is not docked.
Qt::WindowFlags FlagsOf(const Form& form, const QtFront& front);

/// The widget belongs to `owner`, the window above which it stays, if any. `bindings` gets a message if the form has no layout.
QWidget* MakeTop(Form& form, const QtFront& front, QWidget* owner, Bindings& bindings);

/// Whether this is a window that MakeTop has made.
bool IsTop(const QWidget& widget);

/// Adds the menu of the desktop's own commands, so that the other menus stay as the form describes them.
void AddExtraMenu(QMainWindow& window, const QtFront& front, Bindings& bindings);

}  // namespace vatro
