// SPDX-License-Identifier: MIT
//
// The entry form, the operator's working place. It is driven from the keyboard: the cursor stands in the call field, Space
// jumps to the received number and back, Enter logs, Esc clears, and function keys change band, change mode and send Morse.
//
// What is done with the finished entry stands in validation.h, the clock in clock.h.
#pragma once

#include "entry/clock.h"
#include "entry/main_menu.h"
#include "forms.h"

namespace vatro {

class FrmMain : public MainMenu {
public:
    FrmMain();

    Toolbar Toolbar1;
    Label Label1;
    /// The log of the current band and mode, line by line as in the file.
    ListBox List1;
    Frame Frame1;
    /// Time, call, report sent, number sent, report received, number received.
    TextBox Text1[6];
    CheckBox Check1;
    Button Command1;
    Frame Frame2;
    /// Operator.
    ComboBox Combo1;
    Timer Timer1;
    StatusBar sbStatusBar;

    /// Whether the settings know a place of the window: before the first regular end they do not.
    static bool HasPlace();
    /// Whether the start has come so far that all settings are read: before that there is nothing to store.
    bool Up() const { return up_; }

    void Form_Load() override;
    void Form_Unload() override;
    void StoreState() override;
    void Form_Resize() override;

private:
    void Text1_Change(int Index);
    void Text1_GotFocus(int Index);
    void Text1_LostFocus(int Index);
    void BindFields();
    void BindMenu();
    void BindPapers();
    void SetContestClass(std::string_view contestClass);
    void ShowContestClass();
    void ToggleWindow(MenuItem& entry, FormSlotBase& window);

    bool up_ = false;
};

inline FormSlot<FrmMain> frmMain{"frmMain"};

}  // namespace vatro
