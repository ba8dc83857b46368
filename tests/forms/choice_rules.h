// SPDX-License-Identifier: MIT
//
// The rules of option buttons and scroll bars, tested through a front as in front_rules.h.
#pragma once

#include "forms/front_rules.h"

namespace vatro {

class ChoiceRules : public FrontRules {
protected:
    void Show() override { frmRulesChoice->Show(); }
    /// The options of the first frame that are on.
    static std::string ChosenBy(const OutputLines& output) {
        std::string chosen;
        for (std::size_t i = 0; i < output.size(); ++i)
            if (output[i].ends_with(" on")) chosen += std::to_string(i);
        return chosen;
    }
    /// Plays these lines and returns which options of the first frame are then on, as "0" or "12".
    std::string ChosenAfter(std::string_view lines) {
        return ChosenBy(
            Play(std::string(lines) + "\nshow frmRulesChoice.optRST(0)\nshow frmRulesChoice.optRST(1)\nshow frmRulesChoice.optRST(2)"));
    }
};

// --- Option buttons

TEST_P(ChoiceRules, NoOptionIsOnUntilOneIsChosen) {
    EXPECT_EQ(ChosenAfter(""), "");
}

TEST_P(ChoiceRules, ClickMovesTheFocusAndThenChooses) {
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(1)"), "1");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(1)", "Click optRST(1)"}));
}

TEST_P(ChoiceRules, ChoosingTurnsTheOthersOfTheFrameOffWithoutAClick) {
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nclick frmRulesChoice.optRST(2)"), "2");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(0)", "Click optRST(0)", "LostFocus optRST(0)",
                                       "GotFocus optRST(2)", "Click optRST(2)"}));
}

TEST_P(ChoiceRules, FramesChooseEachForItself) {
    EXPECT_EQ(Play("click frmRulesChoice.optRST(0)\nclick frmRulesChoice.optNo(1)\nshow frmRulesChoice.optRST(0)\n"
                   "show frmRulesChoice.optNo(0)\nshow frmRulesChoice.optNo(1)"),
              (Lines{"frmRulesChoice.optRST(0) on", "frmRulesChoice.optNo(0) off", "frmRulesChoice.optNo(1) on"}));
}

TEST_P(ChoiceRules, OptionThatIsOnStaysOnAndRunsNoClick) {
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(1)\nclick frmRulesChoice.optRST(1)\nkey Space"), "1");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(1)", "Click optRST(1)"}));
}

TEST_P(ChoiceRules, TabLeadsToEachOptionWhileNoneIsOn) {
    EXPECT_EQ(Play("key Tab\nshow focus\nkey Tab\nshow focus\nkey Tab\nkey Tab\nshow focus"),
              (Lines{"focus frmRulesChoice.optRST(0)", "focus frmRulesChoice.optRST(1)", "focus frmRulesChoice.optNo(0)"}));
    EXPECT_EQ(ChosenAfter("key Tab\nkey Tab"), "");
}

TEST_P(ChoiceRules, TabLeadsToTheChosenOptionAlone) {
    On("GotFocus Text1", [] {
        frmRulesChoice->optRST[1].SetValue(true);
        frmRulesChoice->optNo[1].SetValue(true);
    });
    EXPECT_EQ(Play("key Tab\nshow focus\nkey Tab\nshow focus\nkey Tab\nshow focus\nkey Shift+Tab\nkey Shift+Tab\nshow focus"),
              (Lines{"focus frmRulesChoice.optRST(1)", "focus frmRulesChoice.optNo(1)", "focus frmRulesChoice.HScroll1",
                     "focus frmRulesChoice.optRST(1)"}));
}

TEST_P(ChoiceRules, SpaceChoosesTheOptionThatHasTheFocus) {
    EXPECT_EQ(ChosenAfter("key Tab\nkey Tab\nkey Space"), "1");
    EXPECT_EQ(happenings.lines.back(), "Click optRST(1)");
}

TEST_P(ChoiceRules, SpaceMadeNothingChoosesNothing) {
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    EXPECT_EQ(ChosenAfter("key Tab\nkey Space"), "");
}

TEST_P(ChoiceRules, ArrowsGoRoundInTheFrameAndChoose) {
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nkey Down"), "1");
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nkey Right\nkey Right"), "2");
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(2)\nkey Down"), "0");
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nkey Up"), "2");
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(2)\nkey Left"), "1");
}

TEST_P(ChoiceRules, ArrowTakesTheFocusAlongAndClicksOnce) {
    EXPECT_EQ(Play("click frmRulesChoice.optRST(2)\nkey Down\nshow focus"), (Lines{"focus frmRulesChoice.optRST(0)"}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(2)", "Click optRST(2)", "LostFocus optRST(2)",
                                       "GotFocus optRST(0)", "Click optRST(0)"}));
}

TEST_P(ChoiceRules, ArrowPassesWhatIsDisabledOrHidden) {
    On("GotFocus Text1", [] { frmRulesChoice->optRST[1].SetEnabled(false); });
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nkey Down"), "2");
    On("GotFocus Text1", [] { frmRulesChoice->optRST[2].SetVisible(false); });
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.optRST(0)\nkey Up"), "1");
}

TEST_P(ChoiceRules, AccessLetterTakesTheFocusAndChooses) {
    EXPECT_EQ(ChosenAfter("key Alt+N"), "1");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(1)", "Click optRST(1)"}));
    EXPECT_EQ(ChosenAfter("key Alt+7\nkey Alt+9"), "0");
}

TEST_P(ChoiceRules, EnterOnAnOptionPressesTheDefaultButton) {
    EXPECT_EQ(ChosenAfter("key Tab\nkey Enter"), "");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(0)", "Click cmdOK"}));
}

TEST_P(ChoiceRules, ProgramChoosesWithOneClickAndWithoutTheFocus) {
    On("LostFocus Text1", [] {
        frmRulesChoice->optRST[2].SetValue(true);
        frmRulesChoice->optRST[2].SetValue(true);
    });
    EXPECT_EQ(ChosenAfter("click frmRulesChoice.cmdOK"), "2");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "Click optRST(2)", "GotFocus cmdOK", "Click cmdOK"}));
}

TEST_P(ChoiceRules, DisabledOptionCannotBeClicked) {
    On("GotFocus Text1", [] { frmRulesChoice->optRST[1].SetEnabled(false); });
    EXPECT_THROW(Play("click frmRulesChoice.optRST(1)"), ScenarioError);
}

TEST_P(ChoiceRules, FocusOnAnOptionWithTheMouseChoosesNothing) {
    EXPECT_EQ(ChosenAfter("focus frmRulesChoice.optRST(1)"), "");
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus optRST(1)"}));
}

// --- Scroll bar

TEST_P(ChoiceRules, ScrollBarBeginsAtItsLowerEnd) {
    EXPECT_EQ(Play("show frmRulesChoice.HScroll1"), (Lines{"frmRulesChoice.HScroll1 100 of 10000"}));
}

TEST_P(ChoiceRules, SlideIsDrawnToAValueWithOneChange) {
    EXPECT_EQ(Play("scroll frmRulesChoice.HScroll1 4321\nshow frmRulesChoice.HScroll1\nshow focus"),
              (Lines{"frmRulesChoice.HScroll1 4321 of 10000", "focus frmRulesChoice.HScroll1"}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "GotFocus HScroll1", "Change HScroll1 4321"}));
}

TEST_P(ChoiceRules, SlideDrawnToWhereItStandsIsNoChange) {
    EXPECT_EQ(HappenedIn("scroll frmRulesChoice.HScroll1 5000\nscroll frmRulesChoice.HScroll1 5000"),
              (Lines{"LostFocus Text1", "GotFocus HScroll1", "Change HScroll1 5000"}));
}

TEST_P(ChoiceRules, SlideReachesBothEndsAndNothingBeyond) {
    EXPECT_EQ(Play("scroll frmRulesChoice.HScroll1 10000\nshow frmRulesChoice.HScroll1\n"
                   "scroll frmRulesChoice.HScroll1 100\nshow frmRulesChoice.HScroll1"),
              (Lines{"frmRulesChoice.HScroll1 10000 of 10000", "frmRulesChoice.HScroll1 100 of 10000"}));
    EXPECT_THROW(Play("scroll frmRulesChoice.HScroll1 10001"), ScenarioError);
    EXPECT_THROW(Play("scroll frmRulesChoice.HScroll1 99"), ScenarioError);
}

TEST_P(ChoiceRules, KeysMoveTheSlideByItsChangesAndToItsEnds) {
    EXPECT_EQ(
        HappenedIn("focus frmRulesChoice.HScroll1\nkey Right\nkey Down\nkey Left\nkey Up\nkey PageDown\nkey PageUp\n"
                   "key End\nkey Home"),
        (Lines{"LostFocus Text1", "GotFocus HScroll1", "Change HScroll1 101", "Change HScroll1 102", "Change HScroll1 101",
               "Change HScroll1 100", "Change HScroll1 1123", "Change HScroll1 100", "Change HScroll1 10000", "Change HScroll1 100"}));
}

TEST_P(ChoiceRules, KeysStopAtTheEnds) {
    EXPECT_EQ(HappenedIn("focus frmRulesChoice.HScroll1\nkey Left\nkey PageUp\nkey Home\nscroll frmRulesChoice.HScroll1 9999\n"
                         "key PageDown\nkey Right\nkey End"),
              (Lines{"LostFocus Text1", "GotFocus HScroll1", "Change HScroll1 9999", "Change HScroll1 10000"}));
}

TEST_P(ChoiceRules, ProgramMovesTheSlideWithOneChange) {
    On("LostFocus Text1", [] {
        frmRulesChoice->HScroll1.SetValue(700);
        frmRulesChoice->HScroll1.SetValue(700);
    });
    EXPECT_EQ(Play("click frmRulesChoice.cmdOK\nshow frmRulesChoice.HScroll1"), (Lines{"frmRulesChoice.HScroll1 700 of 10000"}));
    EXPECT_EQ(happenings.lines, (Lines{"LostFocus Text1", "Change HScroll1 700", "GotFocus cmdOK", "Click cmdOK"}));
}

TEST_P(ChoiceRules, ValueOutsideTheBarIsAFailureOfTheProgram) {
    On("LostFocus Text1", [] { frmRulesChoice->HScroll1.SetValue(99); });
    EXPECT_EQ(Play("key Tab"), (Lines{"error 5"}));
    On("LostFocus Text1", [] { frmRulesChoice->HScroll1.SetValue(10001); });
    EXPECT_EQ(Play("key Tab"), (Lines{"error 5"}));
}

TEST_P(ChoiceRules, DisabledScrollBarCannotBeMoved) {
    On("GotFocus Text1", [] { frmRulesChoice->HScroll1.SetEnabled(false); });
    EXPECT_THROW(Play("scroll frmRulesChoice.HScroll1 500"), ScenarioError);
}

}  // namespace vatro
