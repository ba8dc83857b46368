// SPDX-License-Identifier: MIT
//
// The menu, toolbar and status bar of a main form, built from the form's description.
#pragma once

#include <QList>
#include <QString>

#include "controls.h"

class QAction;
class QMainWindow;
class QMenu;
class QStatusBar;
class QToolBar;

namespace vatro {

class Bindings;
class StatusPanel;

/// Adds empty bars to the window, named after the controls that they will show.
void AddBars(const Form& form, QMainWindow& window);

/// Fills the menu bar with the form's entries.
void BindMenu(Form& form, QMainWindow& window, Bindings& bindings);
/// When the menu is closed without a choice, returns the focus to the form at once; Qt would leave it in the menu bar.
void ReturnKeysAfter(QMenu& menu, Bindings& bindings);
void Bind(Toolbar& control, QToolBar& widget, Bindings& bindings);
void Bind(StatusBar& control, QStatusBar& widget, Bindings& bindings);

/// The action of a menu entry, or null.
QAction* ActionOf(const MenuItem& item, const QMainWindow& window);
/// The action of a toolbar button by its index, or null.
QAction* ActionOf(int index, const QToolBar& bar);
/// The panels of a status bar, in order.
QList<StatusPanel*> PanelsOf(const QStatusBar& bar);

/// The object name of the widget for a control, such as "Text1_0" or "List1".
QString ObjectName(const Control& control);

}  // namespace vatro
