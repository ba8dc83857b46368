// SPDX-License-Identifier: MIT
//
// The rules of forms and controls that the logic relies on, tested on small forms through a front. Every front includes
// this header in one test source and instantiates the suite with its drivers.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "forms/rules_forms.h"
#include "platform.h"
#include "player.h"
#include "program.h"
#include "scenario.h"
#include "world.h"

namespace vatro {

using DriverFactory = std::function<std::unique_ptr<Driver>()>;

class FrontRules : public ::testing::TestWithParam<DriverFactory> {
protected:
    FrontRules() { happenings = {}; }
    ~FrontRules() override { happenings = {}; }

    /// Starts a program that shows the form, plays these lines and returns all output lines.
    OutputLines Play(std::string_view lines) {
        const Scenario scenario("start\n" + std::string(lines));
        const World world;
        const std::unique_ptr<Driver> driver = GetParam()();
        Player player(scenario, world, *driver, [this] {
            Show();
            happenings.lines.clear();
        });
        player.Play();
        OutputLines all;
        for (const OutputLines& output : player.Outputs()) all.insert(all.end(), output.begin(), output.end());
        return all;
    }
    /// Like Play, but returns the events of the forms instead of the output lines.
    std::vector<std::string> HappenedIn(std::string_view lines) {
        Play(lines);
        return happenings.lines;
    }
    /// The form that the program shows.
    virtual void Show() { frmRules->Show(); }
    static void On(const std::string& happening, std::function<void()> reaction) { happenings.reactions[happening] = std::move(reaction); }
    /// Plays these lines on frmRulesLook.
    OutputLines PlayLook(std::string_view lines) {
        On("KeyPress Text1(0) 97", [] { frmRulesLook->Show(); });
        return Play("type a\n" + std::string(lines));
    }
};

using Lines = std::vector<std::string>;

// --- Keys and text

TEST_P(FrontRules, KeyReachesKeyPressBeforeTheFieldTakesIt) {
    EXPECT_EQ(HappenedIn("type a"), (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a"}));
}

TEST_P(FrontRules, KeyPressMayMakeAnotherKeyOfIt) {
    happenings.keyFilter = [](KeyCode& key) { key = 'X'; };
    EXPECT_EQ(Play("type a\nshow frmRules.Text1(0)"), (Lines{"frmRules.Text1(0) \"X\""}));
}

TEST_P(FrontRules, KeyMadeNothingLeavesTheText) {
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    EXPECT_EQ(HappenedIn("type a"), (Lines{"KeyPress Text1(0) 97"}));
}

TEST_P(FrontRules, LettersOfTheCodePageAreOneKeyEach) {
    EXPECT_EQ(Play("type æØå\nshow frmRules.Text1(0)"), (Lines{"frmRules.Text1(0) \"æØå\""}));
    EXPECT_EQ(happenings.lines.front(), "KeyPress Text1(0) 230");
}

TEST_P(FrontRules, EnterEscSpaceAndBackspaceComeToKeyPressByTheirCodes) {
    On("GotFocus Text1(1)", [] {
        frmRules->Command1.isDefault = false;
        frmRules->Command2.isCancel = false;
    });
    EXPECT_EQ(HappenedIn("focus frmRules.Text1(1)\nkey Enter\nkey Esc\nkey Space\nkey Backspace"),
              (Lines{"LostFocus Text1(0)", "GotFocus Text1(1)", "KeyPress Text1(1) 13", "KeyPress Text1(1) 27", "KeyPress Text1(1) 32",
                     "Change Text1(1)  ", "KeyPress Text1(1) 8", "Change Text1(1) "}));
}

TEST_P(FrontRules, DeleteAndTheArrowsDoNotComeToKeyPress) {
    EXPECT_EQ(Play("paste abc\nkey Home\nkey Delete\nkey Right\nkey Delete\nshow frmRules.Text1(0)"), (Lines{"frmRules.Text1(0) \"b\""}));
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) abc", "Change Text1(0) bc", "Change Text1(0) b"}));
}

TEST_P(FrontRules, KeysGoInWhereTheCaretStands) {
    EXPECT_EQ(Play("type ac\nkey Left\ntype b\nkey End\ntype d\nkey Backspace\nshow frmRules.Text1(0)\nshow frmRules.Text1(0) state"),
              (Lines{"frmRules.Text1(0) \"abc\"", "frmRules.Text1(0) enabled shown selected 3 0"}));
}

TEST_P(FrontRules, KeyReplacesTheSelection) {
    On("GotFocus Text1(1)", [] { frmRules->Text1[1].SelectAll(); });
    EXPECT_EQ(Play("focus frmRules.Text1(1)\ntype abc\nfocus frmRules.Text1(0)\nfocus frmRules.Text1(1)\n"
                   "show frmRules.Text1(1) state\ntype x\nshow frmRules.Text1(1)"),
              (Lines{"frmRules.Text1(1) enabled shown limit 5 selected 0 3", "frmRules.Text1(1) \"x\""}));
}

TEST_P(FrontRules, BackspaceAndDeleteTakeTheSelectionAwayAndNoMore) {
    On("GotFocus Text1(1)", [] { frmRules->Text1[1].Select(1, 2); });
    On("LostFocus Text1(0)", [] { frmRules->Text1[1].SetText("abcd"); });
    for (const std::string key : {"Backspace", "Delete"})
        EXPECT_EQ(Play("focus frmRules.Text1(0)\nkey Tab\nkey " + key + "\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"ad\""}))
            << key;
}

TEST_P(FrontRules, ClickIntoAFieldPutsTheCaretBehindItsText) {
    EXPECT_EQ(Play("focus frmRules.Text1(1)\ntype abc\nkey Home\nfocus frmRules.Text1(1)\nshow frmRules.Text1(1) state"),
              (Lines{"frmRules.Text1(1) enabled shown limit 5 selected 3 0"}));
}

TEST_P(FrontRules, PasteDoesNotPassKeyPress) {
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    EXPECT_EQ(HappenedIn("paste a b"), (Lines{"Change Text1(0) a b"}));
}

TEST_P(FrontRules, PasteGoesOverTheSelection) {
    On("GotFocus Text1(1)", [] { frmRules->Text1[1].Select(1, 2); });
    On("LostFocus Text1(0)", [] { frmRules->Text1[1].SetText("abcd"); });
    EXPECT_EQ(Play("key Tab\npaste x\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"axd\""}));
}

TEST_P(FrontRules, LimitHoldsForKeysAndPaste) {
    EXPECT_EQ(Play("focus frmRules.Text1(1)\ntype 1234567\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"12345\""}));
    EXPECT_EQ(Play("focus frmRules.Text1(1)\ntype 12\npaste abcdef\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"12abc\""}));
}

TEST_P(FrontRules, LimitDoesNotHoldForTheProgram) {
    On("GotFocus Text1(1)", [] { frmRules->Text1[1].SetText("1234567"); });
    EXPECT_EQ(Play("focus frmRules.Text1(1)\ntype 8\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"1234567\""}));
}

TEST_P(FrontRules, SettingTheTextThatIsThereIsNoChange) {
    On("GotFocus Text1(1)", [] {
        frmRules->Text1[1].SetText("abc");
        frmRules->Text1[1].SetText("abc");
    });
    EXPECT_EQ(HappenedIn("key Tab"), (Lines{"LostFocus Text1(0)", "GotFocus Text1(1)", "Change Text1(1) abc"}));
}

TEST_P(FrontRules, LockedFieldKeepsItsText) {
    On("GotFocus Text1(1)", [] {
        frmRules->Text1[1].SetText("abc");
        frmRules->Text1[1].SetLocked(true);
    });
    EXPECT_EQ(Play("key Tab\ntype x\npaste y\nkey Delete\nshow frmRules.Text1(1)"), (Lines{"frmRules.Text1(1) \"abc\""}));
}

// --- Focus

TEST_P(FrontRules, OldControlLosesTheFocusBeforeTheNewOneGetsIt) {
    EXPECT_EQ(HappenedIn("focus frmRules.Text1(1)"), (Lines{"LostFocus Text1(0)", "GotFocus Text1(1)"}));
}

TEST_P(FrontRules, FocusWhereItIsRunsNothing) {
    On("KeyPress Text1(0) 97", [] { frmRules->Text1[0].SetFocus(); });
    EXPECT_EQ(HappenedIn("focus frmRules.Text1(0)\ntype a"), (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a"}));
}

TEST_P(FrontRules, HandlerMovesTheFocusAtOnce) {
    On("KeyPress Text1(0) 97", [] {
        frmRules->Text1[1].SetFocus();
        happenings.Note("after");
    });
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    EXPECT_EQ(HappenedIn("type a"), (Lines{"KeyPress Text1(0) 97", "LostFocus Text1(0)", "GotFocus Text1(1)", "after"}));
}

TEST_P(FrontRules, HandlerMayPutTheFocusBack) {
    On("LostFocus Text1(0)", [] { frmRules->Text1[0].SetFocus(); });
    EXPECT_EQ(Play("focus frmRules.Text1(1)\nshow focus"), (Lines{"focus frmRules.Text1(0)"}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1(0)", "GotFocus Text1(0)"}));
}

TEST_P(FrontRules, FocusHasMovedWhileLostFocusAsksAQuestion) {
    On("LostFocus Text1(0)", [] { MsgBox("Hi"); });
    const Lines asked{"box \"vatro\" \"Hi\" OK -", "focus frmRules.Text1(1)", "focus frmRules.Text1(1)"};
    EXPECT_EQ(Play("focus frmRules.Text1(1)\nshow focus\nanswer OK\nshow focus"), asked);
    EXPECT_EQ(Play("key Tab\nshow focus\nanswer OK\nshow focus"), asked);
    EXPECT_EQ(Play("key Alt+C\nshow focus\nanswer OK\nshow focus"), asked);
}

TEST_P(FrontRules, FocusIsPutBackAfterAQuestionOfLostFocus) {
    On("LostFocus Text1(0)", [] {
        MsgBox("Hi");
        frmRules->Text1[0].SetFocus();
    });
    const Lines asked{"box \"vatro\" \"Hi\" OK -", "focus frmRules.Check1", "focus frmRules.Text1(0)"};
    EXPECT_EQ(Play("focus frmRules.Check1\nshow focus\nanswer OK\nshow focus"), asked);
}

TEST_P(FrontRules, TabWalksTheTabOrderRoundBothWays) {
    EXPECT_EQ(Play("key Shift+Tab\nshow focus\nkey Tab\nkey Tab\nkey Tab\nshow focus"),
              (Lines{"focus frmRules.Combo1", "focus frmRules.Check1"}));
}

TEST_P(FrontRules, TabPassesWhatCannotTakeTheFocus) {
    On("GotFocus Text1(1)", [] {
        frmRules->Check1.SetEnabled(false);
        frmRules->Command1.SetVisible(false);
        frmRules->Command2.SetTabStop(false);
    });
    EXPECT_EQ(Play("key Tab\nkey Tab\nshow focus"), (Lines{"focus frmRules.List1"}));
}

TEST_P(FrontRules, FocusOnADisabledControlIsAFailure) {
    On("KeyPress Text1(0) 97", [] {
        frmRules->Text1[1].SetEnabled(false);
        frmRules->Text1[1].SetFocus();
    });
    EXPECT_EQ(Play("type a\nshow frmRules"), (Lines{"error 5", "frmRules unloaded"}));
}

TEST_P(FrontRules, MessageBoxIsNoLossOfFocus) {
    On("KeyPress Text1(0) 97", [] { MsgBox("Hi"); });
    EXPECT_EQ(Play("type a\nshow focus\nanswer OK\ntype b\nshow frmRules.Text1(0)"),
              (Lines{"box \"vatro\" \"Hi\" OK -", "focus frmRules.Text1(0)", "frmRules.Text1(0) \"ab\""}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a", "KeyPress Text1(0) 98", "Change Text1(0) ab"}));
}

TEST_P(FrontRules, MenuIsNoLossOfFocus) {
    EXPECT_EQ(HappenedIn("menu mnuRulesOne"), (Lines{"Click mnuRulesOne"}));
}

TEST_P(FrontRules, AnotherFormInFrontIsNoLossOfFocus) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->Show(); });
    EXPECT_EQ(Play("type a\nshow focus\nfocus frmRules.Text1(0)\nshow focus"),
              (Lines{"focus frmRulesOver.Text1", "focus frmRules.Text1(0)"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "Change Text1(0) a"}));
}

// --- Buttons, check boxes, lists, menus

TEST_P(FrontRules, MouseMovesTheFocusToAButtonBeforeItIsPressed) {
    EXPECT_EQ(HappenedIn("click frmRules.Command1"), (Lines{"LostFocus Text1(0)", "GotFocus Command1", "Click Command1"}));
}

TEST_P(FrontRules, AccessKeyPressesAButtonAndLeavesTheFocus) {
    EXPECT_EQ(HappenedIn("key Alt+L"), (Lines{"Click Command1"}));
}

TEST_P(FrontRules, AccessKeyFlipsACheckBoxAndLeavesTheFocus) {
    EXPECT_EQ(Play("key Alt+S\nshow frmRules.Check1\nshow focus"), (Lines{"frmRules.Check1 on", "focus frmRules.Text1(0)"}));
    EXPECT_EQ(happenings.lines, (Lines{"Click Check1"}));
}

TEST_P(FrontRules, AccessKeyOfAFrameLeadsToItsField) {
    EXPECT_EQ(HappenedIn("key Alt+C"), (Lines{"LostFocus Text1(0)", "GotFocus Text1(1)"}));
}

TEST_P(FrontRules, AccessKeyOpensAMenuAndALetterChoosesInIt) {
    EXPECT_EQ(HappenedIn("key Alt+R\nkey T"), (Lines{"Click mnuRulesTwo"}));
}

TEST_P(FrontRules, EscClosesAMenuWithoutAChoice) {
    EXPECT_EQ(HappenedIn("key Alt+R\nkey Esc\ntype t"), (Lines{"KeyPress Text1(0) 116", "Change Text1(0) t"}));
}

TEST_P(FrontRules, EnterPressesTheDefaultButtonAndLeavesTheFocus) {
    EXPECT_EQ(HappenedIn("key Enter"), (Lines{"Click Command1"}));
}

TEST_P(FrontRules, EscPressesTheCancelButtonAndLeavesTheFocus) {
    EXPECT_EQ(HappenedIn("key Esc"), (Lines{"Click Command2"}));
}

TEST_P(FrontRules, EnterOnAnotherButtonPressesThatOne) {
    EXPECT_EQ(HappenedIn("focus frmRules.Check1\nkey Tab\nkey Tab\nkey Enter"),
              (Lines{"LostFocus Text1(0)", "GotFocus Check1", "LostFocus Check1", "GotFocus Command1", "LostFocus Command1",
                     "GotFocus Command2", "Click Command2"}));
}

TEST_P(FrontRules, SpaceFlipsACheckBox) {
    EXPECT_EQ(Play("key Tab\nkey Tab\nkey Space\nshow frmRules.Check1\nkey Space\nshow frmRules.Check1"),
              (Lines{"frmRules.Check1 on", "frmRules.Check1 off"}));
}

TEST_P(FrontRules, ShortcutChoosesItsMenuItem) {
    EXPECT_EQ(HappenedIn("key Ctrl+N\nkey Shift+F5\nkey F5"), (Lines{"Click mnuRulesOne", "Click mnuRulesTwo"}));
}

TEST_P(FrontRules, ShortcutOfADisabledItemOrMenuDoesNothing) {
    On("GotFocus Text1(1)", [] { frmRules->mnuRulesOne.SetEnabled(false); });
    On("GotFocus Check1", [] { frmRules->mnuRules.SetEnabled(false); });
    EXPECT_EQ(HappenedIn("key Tab\nkey Ctrl+N\nkey Tab\nkey Shift+F5"),
              (Lines{"LostFocus Text1(0)", "GotFocus Text1(1)", "LostFocus Text1(1)", "GotFocus Check1"}));
}

TEST_P(FrontRules, DisabledMenuStaysSoWhenItsFormIsEnabledAgain) {
    On("KeyPress Text1(0) 97", [] {
        frmRules->mnuRules.SetEnabled(false);
        frmRules->SetEnabled(false);
        frmRules->SetEnabled(true);
    });
    EXPECT_EQ(Play("type a\nshow menu mnuRules\nkey Ctrl+N\ntype b\nshow frmRules.Text1(0)"),
              (Lines{"mnuRules \"&Rules\" disabled", "frmRules.Text1(0) \"ab\""}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a", "KeyPress Text1(0) 98", "Change Text1(0) ab"}));
}

TEST_P(FrontRules, FormAboveADisabledOneCanBeUsed) {
    On("KeyPress Text1(0) 97", [] {
        frmRulesOver->Show();
        frmRules->SetEnabled(false);
    });
    EXPECT_EQ(Play("type a\nshow frmRulesOver\ntype b\nshow frmRulesOver.Text1\nkey Enter\nshow frmRulesOver"),
              (Lines{"frmRulesOver \"Over\" shown", "frmRulesOver.Text1 \"b\"", "frmRulesOver \"Over\" hidden"}));
}

TEST_P(FrontRules, FormShownFromAMenuHasTheKeys) {
    On("Click mnuRulesOne", [] { frmRulesOver->Show(); });
    EXPECT_EQ(Play("menu mnuRulesOne\nshow focus\ntype b\nshow frmRulesOver.Text1"),
              (Lines{"focus frmRulesOver.Text1", "frmRulesOver.Text1 \"b\""}));
}

TEST_P(FrontRules, FormShownFromAMenuOfADisabledFormHasTheKeys) {
    On("Click mnuRulesOne", [] {
        frmRules->SetEnabled(false);
        frmRulesOver->Show();
        frmRules->SetEnabled(true);
    });
    EXPECT_EQ(Play("menu mnuRulesOne\nshow focus\ntype b\nshow frmRulesOver.Text1"),
              (Lines{"focus frmRulesOver.Text1", "frmRulesOver.Text1 \"b\""}));
}

TEST_P(FrontRules, ShortcutDoesNotWorkWhileAnotherFormIsActive) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->Show(); });
    EXPECT_EQ(HappenedIn("type a\nkey Ctrl+N"), (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "Change Text1(0) a"}));
}

TEST_P(FrontRules, ListIsPickedByMouseAndArrows) {
    EXPECT_EQ(Play("pick frmRules.List1 two\nkey Down\nkey Down\nshow frmRules.List1"),
              (Lines{"frmRules.List1 3 items selected 2", "\"one\"", "\"two\"", "\"three\""}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1(0)", "GotFocus List1", "Click List1", "Click List1"}));
}

TEST_P(FrontRules, DoubleClickSelectsFirst) {
    EXPECT_EQ(HappenedIn("dblclick frmRules.List1 1"), (Lines{"LostFocus Text1(0)", "GotFocus List1", "Click List1", "DblClick List1"}));
}

TEST_P(FrontRules, ComboBoxTakesThePickedItemAsItsText) {
    EXPECT_EQ(Play("pick frmRules.Combo1 #1\nshow frmRules.Combo1"),
              (Lines{"frmRules.Combo1 \"two\" 3 items", "\"one\"", "\"two\"", "\"three\""}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1(0)", "GotFocus Combo1", "Click Combo1"}));
}

TEST_P(FrontRules, ComboBoxIsEditedLikeAField) {
    EXPECT_EQ(Play("focus frmRules.Combo1\ntype abc\nkey Backspace\nshow frmRules.Combo1"),
              (Lines{"frmRules.Combo1 \"ab\" 3 items", "\"one\"", "\"two\"", "\"three\""}));
}

// --- Sorted lists, texts to read, pictures

TEST_P(FrontRules, SortedListIsInTheOrderOfCharacterCodes) {
    EXPECT_EQ(PlayLook("show frmRulesLook.List1"), (Lines{"frmRulesLook.List1 4 items selected -1", "\"C\"", "\"a\"", "\"b\"", "\"æ\""}));
}

TEST_P(FrontRules, AddedItemGoesBehindItsEquals) {
    On("Click Image1", [] { frmRulesLook->List1.AddItem("b"); });
    EXPECT_EQ(PlayLook("pick frmRulesLook.List1 b\nclick frmRulesLook.Image1\nshow frmRulesLook.List1"),
              (Lines{"frmRulesLook.List1 5 items selected 2", "\"C\"", "\"a\"", "\"b\"", "\"b\"", "\"æ\""}));
}

TEST_P(FrontRules, SelectionStaysOnItsItem) {
    On("Click Image1", [] {
        ListBox& list = frmRulesLook->List1;
        list.AddItem("B");
        list.AddItem("z");
        list.RemoveItem(1);
        list.RemoveItem(0);
    });
    EXPECT_EQ(PlayLook("pick frmRulesLook.List1 b\nclick frmRulesLook.Image1\nshow frmRulesLook.List1\nkey Down\nshow frmRulesLook.List1"),
              (Lines{"frmRulesLook.List1 4 items selected 1", "\"a\"", "\"b\"", "\"z\"", "\"æ\"", "frmRulesLook.List1 4 items selected 2",
                     "\"a\"", "\"b\"", "\"z\"", "\"æ\""}));
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) a", "Click List1", "Click Image1", "Click List1"}));
}

TEST_P(FrontRules, SelectionGoesWithItsItem) {
    On("Click Image1", [] { frmRulesLook->List1.RemoveItem(2); });
    EXPECT_EQ(PlayLook("pick frmRulesLook.List1 b\nclick frmRulesLook.Image1\nshow frmRulesLook.List1"),
              (Lines{"frmRulesLook.List1 3 items selected -1", "\"C\"", "\"a\"", "\"æ\""}));
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) a", "Click List1", "Click Image1"}));
}

TEST_P(FrontRules, ItemThatIsNotThereCannotBeRemoved) {
    On("Click Image1", [] { frmRulesLook->List1.RemoveItem(4); });
    EXPECT_EQ(PlayLook("click frmRulesLook.Image1"), (Lines{"error 5"}));
}

TEST_P(FrontRules, ListShowsTheRowsOfAnotherOwner) {
    const auto rows = std::make_shared<std::vector<std::string>>(1, "first");
    On("Click Image1", [&rows] {
        ListBox& list = frmRulesLook->List1;
        list.ShowRowsOf(rows);
        rows->emplace_back("second");
        list.OwnerAppended();
        list.SetListIndex(1);
        rows->front() = "other";
        list.OwnerReplaced(0);
    });
    EXPECT_EQ(PlayLook("click frmRulesLook.Image1\nshow frmRulesLook.List1\nfocus frmRulesLook.List1\nkey Up\nshow frmRulesLook.List1"),
              (Lines{"frmRulesLook.List1 2 items selected 1", "\"other\"", "\"second\"", "frmRulesLook.List1 2 items selected 0",
                     "\"other\"", "\"second\""}));
}

TEST_P(FrontRules, ListIsEmptyWhenItsOwnerClearsIt) {
    const auto rows = std::make_shared<std::vector<std::string>>(2, "row");
    On("Click Image1", [&rows] {
        ListBox& list = frmRulesLook->List1;
        list.ShowRowsOf(rows);
        list.SetListIndex(1);
        rows->clear();
        list.OwnerCleared();
    });
    EXPECT_EQ(PlayLook("click frmRulesLook.Image1\nshow frmRulesLook.List1"), (Lines{"frmRulesLook.List1 0 items selected -1"}));
}

TEST_P(FrontRules, TextToReadKeepsItsTextAndItsCaret) {
    EXPECT_EQ(
        PlayLook("type xy\nkey Backspace\nkey Delete\nkey Down\nkey End\nkey PageDown\npaste z\nshow frmRulesLook.Text1\n"
                 "show frmRulesLook.Text1 state\nshow focus"),
        (Lines{"frmRulesLook.Text1 \"one\\n\\nthree\\n\"", "frmRulesLook.Text1 enabled shown selected 0 0", "focus frmRulesLook.Text1"}));
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) a", "KeyPress Text1 120", "KeyPress Text1 121", "KeyPress Text1 8"}));
}

TEST_P(FrontRules, ClickIntoATextToReadPutsTheCaretBehindIt) {
    EXPECT_EQ(PlayLook("focus frmRulesLook.List1\nfocus frmRulesLook.Text1\nshow frmRulesLook.Text1 state"),
              (Lines{"frmRulesLook.Text1 enabled shown selected 14 0"}));
}

TEST_P(FrontRules, EnterAndEscInATextToReadAreTheFormsButtons) {
    PlayLook("key Enter\nkey Esc");
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) a", "Click cmdOK", "Click cmdOK"}));
}

TEST_P(FrontRules, ClickOnAPictureIsNoneOnItsFormAndLeavesTheFocus) {
    EXPECT_EQ(PlayLook("click frmRulesLook.Image1\nshow focus"), (Lines{"focus frmRulesLook.Text1"}));
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) a", "Click Image1"}));
}

// --- Forms

TEST_P(FrontRules, ModalFormHoldsItsCaller) {
    On("KeyPress Text1(0) 97", [] {
        frmRulesOver->ShowModal();
        happenings.Note("caller goes on with " + frmRulesOver->Text1.Text());
    });
    EXPECT_EQ(Play("type a\nshow focus\ntype xy\nclick frmRulesOver.cmdOK\nshow frmRulesOver\nshow focus"),
              (Lines{"focus frmRulesOver.Text1", "frmRulesOver \"Over\" hidden", "focus frmRules.Text1(0)"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "caller goes on with xy", "Change Text1(0) a"}));
}

TEST_P(FrontRules, ModalFormBlocksTheOthers) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->ShowModal(); });
    EXPECT_THROW(Play("type a\nfocus frmRules.Text1(1)"), ScenarioError);
    EXPECT_THROW(Play("type a\nmenu mnuRulesOne"), ScenarioError);
    EXPECT_THROW(Play("type a\nclose frmRules"), ScenarioError);
}

TEST_P(FrontRules, ModalFormThatIsUnloadedLetsItsCallerGoOn) {
    On("KeyPress Text1(0) 97", [] {
        frmRulesOver->ShowModal();
        happenings.Note("on");
    });
    EXPECT_EQ(HappenedIn("type a\nclose frmRulesOver"),
              (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "Unload frmRulesOver", "on", "Change Text1(0) a"}));
}

TEST_P(FrontRules, TimerTicksWhileAFormOrBoxIsOpen) {
    On("KeyPress Text1(0) 97", [] {
        frmRules->Timer1.SetRunning(true);
        frmRulesOver->ShowModal();
    });
    On("Timer", [] { MsgBox("Tick"); });
    EXPECT_EQ(Play("type a\nadvance 10\nadvance 10\nanswer OK\nanswer OK"),
              (Lines{"box \"vatro\" \"Tick\" OK -", "box \"vatro\" \"Tick\" OK -"}));
}

TEST_P(FrontRules, FormThatWasNeverPlacedHasNoPlace) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->Show(); });
    EXPECT_EQ(Play("type a\nshow frmRulesOver place\nplace frmRulesOver 1500 1800 6000 3000\nshow frmRulesOver place"),
              (Lines{"frmRulesOver 0 0 0 0", "frmRulesOver 1500 1800 6000 3000"}));
}

TEST_P(FrontRules, HiddenFormKeepsItsFieldsAndAnUnloadedOneDoesNot) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->Show(); });
    On("KeyPress Text1(0) 98", [] { frmRulesOver->Show(); });
    EXPECT_EQ(Play("type a\ntype x\nclick frmRulesOver.cmdOK\ntype b\nshow frmRulesOver.Text1\nclose frmRulesOver\n"
                   "show frmRulesOver.Text1\ntype a\nshow frmRulesOver.Text1"),
              (Lines{"frmRulesOver.Text1 \"x\"", "frmRulesOver unloaded", "frmRulesOver.Text1 \"\""}));
}

TEST_P(FrontRules, UsingAFormLoadsItWithoutShowingIt) {
    On("KeyPress Text1(0) 97", [] { frmRulesOver->Text1.SetText("set"); });
    EXPECT_EQ(Play("type a\nshow frmRulesOver\nshow frmRulesOver.Text1\nshow focus"),
              (Lines{"frmRulesOver \"Over\" hidden", "frmRulesOver.Text1 \"set\"", "focus frmRules.Text1(0)"}));
}

TEST_P(FrontRules, ClosingAsksBeforeItUnloads) {
    EXPECT_EQ(Play("close frmRules"), (Lines{"ended"}));
    EXPECT_EQ(happenings.lines, (Lines{"QueryUnload frmRules", "Unload frmRules"}));
}

TEST_P(FrontRules, FormThatRefusesStaysOpen) {
    On("KeyPress Text1(0) 97", [] { frmRules->keepOpen = true; });
    EXPECT_EQ(Play("type a\nclose frmRules\nshow frmRules"), (Lines{"frmRules \"Rules\" shown"}));
}

TEST_P(FrontRules, SizingTheWindowTellsTheFormOnce) {
    EXPECT_EQ(Play("place frmRules 1500 1200 7500 6000\nshow frmRules place"), (Lines{"frmRules 1500 1200 7500 6000"}));
    EXPECT_EQ(happenings.lines, (Lines{"Resize frmRules"}));
}

TEST_P(FrontRules, MovingTheWindowIsNoResize) {
    EXPECT_EQ(Play("place frmRules 1500 1200 6000 4500\nshow frmRules place"), (Lines{"frmRules 1500 1200 6000 4500"}));
    EXPECT_EQ(happenings.lines, (Lines{}));
}

TEST_P(FrontRules, MinimisingAndRestoringTellTheForm) {
    EXPECT_EQ(Play("minimise frmRules\nshow frmRules\nrestore frmRules\nshow frmRules"),
              (Lines{"frmRules \"Rules\" minimised", "frmRules \"Rules\" shown"}));
    EXPECT_EQ(happenings.lines, (Lines{"Resize frmRules", "Resize frmRules"}));
}

// --- The end

TEST_P(FrontRules, FailureThatNothingCatchesEndsTheProgram) {
    On("KeyPress Text1(0) 97", [] { throw RunTimeError(Failure::Overflow); });
    EXPECT_EQ(Play("type a\nshow frmRules"), (Lines{"error 6", "frmRules unloaded"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97"}));
}

TEST_P(FrontRules, FailureInsideAModalFormEndsItsCallerToo) {
    On("KeyPress Text1(0) 97", [] {
        frmRulesOver->ShowModal();
        happenings.Note("never");
    });
    On("Timer", [] { throw RunTimeError(Failure::DivisionByZero); });
    On("Load frmRulesOver", [] { frmRules->Timer1.SetRunning(true); });
    EXPECT_EQ(Play("type a\nadvance 10\nshow frmRulesOver"), (Lines{"error 11", "frmRulesOver unloaded"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "Timer"}));
}

TEST_P(FrontRules, ProgramThatEndsAtOnceUnloadsNothing) {
    On("Click Command1", [] {
        EndProgram();
        happenings.Note("never");
    });
    EXPECT_EQ(Play("click frmRules.Command1"), (Lines{"ended"}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1(0)", "GotFocus Command1", "Click Command1"}));
}

TEST_P(FrontRules, PowerFailureRunsNoHandler) {
    On("KeyPress Text1(0) 97", [] {
        frmRulesOver->ShowModal();
        happenings.Note("never");
    });
    EXPECT_EQ(Play("type a\nkill\nshow frmRules\nstart\nshow frmRules"), (Lines{"frmRules unloaded", "frmRules \"Rules\" shown"}));
    EXPECT_EQ(happenings.lines, (Lines{}));
}

}  // namespace vatro
