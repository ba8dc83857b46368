// SPDX-License-Identifier: MIT
//
// The entry form, where the operator works. It is driven from the keyboard: the cursor is in the call field, Space jumps to the received
// number and back, Enter logs, Esc clears, and function keys change band, change mode and send Morse.
//
// This header has only the form, its controls and their texts. The handlers are in main_handlers.cpp and menu_clicks.cpp, the check
// and logging of the finished entry in validation.h, the clock in clock.h.
#pragma once

#include "entry/main_menu.h"
#include "entry/qso_fields.h"
#include "forms.h"

namespace vatro {

class FrmMain : public MainMenu {
public:
    FrmMain();

    Toolbar toolbar;
    Label columnHeads;
    /// Shows the lines of DeskState::log.
    ListBox log;
    Frame contactFrame;
    /// The fields of the contact; ContactField gives the index of each.
    ContactFields fields;
    CheckBox qsl;
    Button logButton;
    Frame operatorFrame;
    /// Operator.
    ComboBox operatorBox;
    Timer minuteTimer;
    StatusBar statusBar;

    /// Whether the start has read all settings. Before that there is nothing to store.
    bool up = false;

private:
    void SetToolTips();
};

/// The form. main_handlers.cpp binds its handlers. Code that needs one of its controls can include this header without depending on
/// the handlers.
extern FormSlot<FrmMain> frmMain;

}  // namespace vatro
