// SPDX-License-Identifier: MIT
//
// The entry form, the operator's working place. It is driven from the keyboard: the cursor stands in the call field, Space
// jumps to the received number and back, Enter logs, Esc clears, and function keys change band, change mode and send Morse.
//
// This is the form alone, its controls and their texts. What its handlers do stands in main_handlers.cpp and menu_clicks.cpp; what is
// done with the finished entry in validation.h, the clock in clock.h.
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

    /// Whether the start has come so far that all settings are read: before that there is nothing to store.
    bool up = false;

    /// Whether the settings know a place of the window: before the first regular end they do not.
    static bool HasPlace();

private:
    void SetToolTips();
};

/// The form with its handlers, which main_handlers.cpp binds: everything that the form does is above it, so that whatever needs one of its
/// controls can use this page.
extern FormSlot<FrmMain> frmMain;

}  // namespace vatro
