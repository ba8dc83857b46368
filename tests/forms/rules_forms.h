// SPDX-License-Identifier: MIT
//
// Small forms for tests of the platform's rules. They record the events of their controls; a test can give them a reaction to
// each.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms.h"

namespace vatro {

/// The events of the test's forms, and the reactions to them.
struct Happenings {
    /// The events in order, for example "GotFocus Text1(0)".
    std::vector<std::string> lines;
    /// What a handler does, by the line that it records.
    std::map<std::string, std::function<void()>> reactions;
    /// Changes or drops the keys typed into the fields.
    std::function<void(KeyCode&)> keyFilter;

    void Note(const std::string& line) {
        lines.push_back(line);
        const auto reaction = reactions.find(line);
        if (reaction != reactions.end()) reaction->second();
    }
};

inline Happenings happenings;

/// A form with one control of each kind.
class FrmRules : public Form {
public:
    FrmRules() : Form("frmRules", FormKind::Main, "Rules") {
        for (TextBox& field : Text1) {
            Watch(field);
            field.KeyPress = [&field](KeyCode& KeyAscii) {
                happenings.Note("KeyPress " + field.FullName() + " " + std::to_string(KeyAscii));
                if (happenings.keyFilter) happenings.keyFilter(KeyAscii);
            };
            field.Change = [&field] { happenings.Note("Change " + field.FullName() + " " + field.Text()); };
        }
        Text1[1].SetMaxLength(5);
        for (Control* control : std::vector<Control*>{&Check1, &Command1, &Command2, &List1, &Combo1}) Watch(*control);
        for (Control* control : std::vector<Control*>{&Check1, &Command1, &Command2, &List1, &Combo1, &mnuRulesOne, &mnuRulesTwo})
            control->Click = [control] { happenings.Note("Click " + control->FullName()); };
        List1.DblClick = [] { happenings.Note("DblClick List1"); };
        Timer1.OnTimer = [] { happenings.Note("Timer"); };
        Command1.isDefault = true;
        Command2.isCancel = true;
        SetTabOrder({&Text1[0], &Text1[1], &Check1, &Command1, &Command2, &List1, &Combo1});
    }
    void Form_Load() override {
        Place(1000, 1000, 6000, 4500);
        for (const char* row : {"one", "two", "three"}) {
            List1.AddItem(row);
            Combo1.AddItem(row);
        }
        happenings.Note("Load frmRules");
    }
    void Form_QueryUnload(bool& Cancel) override {
        Cancel = keepOpen;
        happenings.Note("QueryUnload frmRules");
    }
    void Form_Unload() override { happenings.Note("Unload frmRules"); }
    void Form_Resize() override { happenings.Note("Resize frmRules"); }

    MenuItem mnuRules{*this, nullptr, "mnuRules", "&Rules"};
    MenuItem mnuRulesOne{*this, &mnuRules, "mnuRulesOne", "&One", -1, {.shortcut = "Ctrl+N"}};
    MenuItem mnuRulesTwo{*this, &mnuRules, "mnuRulesTwo", "&Two", -1, {.shortcut = "Shift+F5"}};
    Frame Frame1{*this, "Frame1", "&Call:", &Text1[1]};
    TextBox Text1[2]{{*this, "Text1", 0}, {*this, "Text1", 1}};
    CheckBox Check1{*this, "Check1", "Q&SL"};
    Button Command1{*this, "Command1", "&Log"};
    Button Command2{*this, "Command2", "&Undo"};
    ListBox List1{*this, "List1"};
    ComboBox Combo1{*this, "Combo1"};
    Timer Timer1{*this, "Timer1", 10000};
    /// The form refuses to be closed.
    bool keepOpen = false;

private:
    static void Watch(Control& control) {
        control.GotFocus = [&control] { happenings.Note("GotFocus " + control.FullName()); };
        control.LostFocus = [&control] { happenings.Note("LostFocus " + control.FullName()); };
    }
};

/// A form with option buttons in two frames and a scroll bar.
class FrmRulesChoice : public Form {
public:
    FrmRulesChoice() : Form("frmRulesChoice", FormKind::Dialog, "Choice") {
        cmdOK.isDefault = true;
        for (Control* control : std::vector<Control*>{&Text1, &optRST[0], &optRST[1], &optRST[2], &optNo[0], &optNo[1], &HScroll1, &cmdOK})
            Watch(*control);
        for (OptionButton& option : optRST) option.KeyPress = Filter;
        HScroll1.Change = [this] { happenings.Note("Change HScroll1 " + std::to_string(HScroll1.Value())); };
        SetTabOrder({&Text1, &optRST[0], &optRST[1], &optRST[2], &optNo[0], &optNo[1], &HScroll1, &cmdOK});
    }

    TextBox Text1{*this, "Text1"};
    Frame Frame1{*this, "Frame1", "Report"};
    Frame Frame2{*this, "Frame2", "Number"};
    OptionButton optRST[3]{
        {*this, "optRST", 0, "5&99", Frame1}, {*this, "optRST", 1, "5&nn", Frame1}, {*this, "optRST", 2, "5&79", Frame1}};
    OptionButton optNo[2]{{*this, "optNo", 0, "&001", Frame2}, {*this, "optNo", 1, "&--1", Frame2}};
    ScrollBar HScroll1{*this, "HScroll1", {.min = 100, .max = 10000, .smallChange = 1, .largeChange = 1023}};
    Button cmdOK{*this, "cmdOK", "&OK"};

private:
    static void Watch(Control& control) {
        control.GotFocus = [&control] { happenings.Note("GotFocus " + control.FullName()); };
        control.LostFocus = [&control] { happenings.Note("LostFocus " + control.FullName()); };
        control.Click = [&control] { happenings.Note("Click " + control.FullName()); };
    }
    static void Filter(KeyCode& KeyAscii) {
        if (happenings.keyFilter) happenings.keyFilter(KeyAscii);
    }
};

/// A form to be shown on top of the other one.
class FrmRulesOver : public Form {
public:
    FrmRulesOver() : Form("frmRulesOver", FormKind::Dialog, "Over") {
        cmdOK.Click = [this] { Hide(); };
        cmdOK.isDefault = true;
        SetTabOrder({&Text1, &cmdOK});
    }
    void Form_Load() override { happenings.Note("Load frmRulesOver"); }
    void Form_Unload() override { happenings.Note("Unload frmRulesOver"); }

    TextBox Text1{*this, "Text1"};
    Button cmdOK{*this, "cmdOK", "&OK"};
};

/// A form for tests of sorted lists, texts to read and pictures.
class FrmRulesLook : public Form {
public:
    FrmRulesLook() : Form("frmRulesLook", FormKind::Tool, "Look") {
        Text1.KeyPress = [](KeyCode& KeyAscii) { happenings.Note("KeyPress Text1 " + std::to_string(KeyAscii)); };
        Text1.Change = [] { happenings.Note("Change Text1"); };
        for (Control* control : std::vector<Control*>{&List1, &Image1, &cmdOK})
            control->Click = [control] { happenings.Note("Click " + control->FullName()); };
        cmdOK.isDefault = true;
        cmdOK.isCancel = true;
        SetTabOrder({&Text1, &List1, &cmdOK});
    }
    void Form_Load() override {
        Text1.SetText("one\r\n\r\nthree\r\n");
        for (const char* row : {"b", "a", "\xE6", "C"}) List1.AddItem(row);
        happenings.lines.clear();
    }
    void Form_Click() override { happenings.Note("Click frmRulesLook"); }

    TextView Text1{*this, "Text1"};
    ListBox List1{*this, "List1", {}, ListOrder::Sorted};
    Picture Image1{*this, "Image1", "none.png"};
    Button cmdOK{*this, "cmdOK", "&OK"};
};

inline FormSlot<FrmRules> frmRules{"frmRules"};
inline FormSlot<FrmRulesChoice> frmRulesChoice{"frmRulesChoice"};
inline FormSlot<FrmRulesOver> frmRulesOver{"frmRulesOver"};
inline FormSlot<FrmRulesLook> frmRulesLook{"frmRulesLook"};

}  // namespace vatro
