// SPDX-License-Identifier: MIT
//
// Menu, toolbar and status bar of a main form, built from the form's own description.
#pragma once

#include <QList>
#include <QString>

#include "controls.h"

class QAction;
class QMainWindow;
class QStatusBar;
class QToolBar;

namespace vatro {

class Bindings;
class StatusPanel;

/// Adds empty bars, named after the controls that will fill them.
void AddBars(const Form& form, QMainWindow& window);

/// Fills the menu bar with the form's entries.
void BindMenu(Form& form, QMainWindow& window, Bindings& bindings);
void Bind(Toolbar& control, QToolBar& widget, Bindings& bindings);
void Bind(StatusBar& control, QStatusBar& widget, Bindings& bindings);

/// The action of a menu entry in its window.
QAction* ActionOf(const MenuItem& item, const QMainWindow& window);
/// The action of a toolbar's button.
QAction* ActionOf(int index, const QToolBar& bar);
/// The panels of a status bar, from the first on.
QList<StatusPanel*> PanelsOf(const QStatusBar& bar);

/// The object name that belongs to a control: "Text1_0", "List1".
QString ObjectName(const Control& control);

}  // namespace vatro
