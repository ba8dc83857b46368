// SPDX-License-Identifier: MIT
#include "player.h"

#include <gtest/gtest.h>

#include "forms/rules_forms.h"
#include "memory_front.h"
#include "program.h"

namespace vatro {

namespace {

using Lines = std::vector<std::string>;

/// A program that shows the form, and a world that the test can inspect afterwards.
class PlayerTest : public ::testing::Test {
protected:
    PlayerTest() { happenings = {}; }
    ~PlayerTest() override { happenings = {}; }

    /// The output lines of each command.
    std::vector<OutputLines> Played(std::string_view text) {
        const Scenario scenario(text);
        MemoryFront front;
        Player player(scenario, world, front, [] {
            frmRules->Show();
            happenings.lines.clear();
        });
        player.Play();
        return player.Outputs();
    }
    /// The output lines of all commands.
    OutputLines OutputOf(std::string_view text) {
        OutputLines all;
        for (const OutputLines& output : Played(text)) all.insert(all.end(), output.begin(), output.end());
        return all;
    }
    /// The error that stops the scenario, as "LINE: reason".
    std::string ErrorOf(std::string_view text) {
        try {
            Played(text);
        } catch (const ScenarioError& error) {
            return std::to_string(error.Line()) + ": " + error.what();
        }
        return {};
    }
    static void On(const std::string& happening, std::function<void()> reaction) { happenings.reactions[happening] = std::move(reaction); }
    /// Runs the reaction when the scenario types the letter a.
    static void OnKeyA(std::function<void()> reaction) { On("KeyPress Text1(0) 97", std::move(reaction)); }
    static MessageBox Question(std::string text) {
        MessageBox box;
        box.text = std::move(text);
        box.buttons = Buttons::YesNo;
        return box;
    }

    World world;
};

}  // namespace

// --- Boxes

TEST_F(PlayerTest, OutputBehindABoxBelongsToTheCommandThatClosesIt) {
    OnKeyA([] {
        MsgBox("1");
        MsgBox("2");
    });
    EXPECT_EQ(
        Played("start\ntype a\nadvance 1\nanswer OK\nshow focus\nanswer OK\n"),
        (std::vector<OutputLines>{{}, {"box \"vatro\" \"1\" OK -"}, {}, {"box \"vatro\" \"2\" OK -"}, {"focus frmRules.Text1(0)"}, {}}));
}

TEST_F(PlayerTest, AnswerComesBackToTheProgram) {
    OnKeyA([] { happenings.Note(MsgBox(Question("?")) == Answer::Yes ? "yes" : "no"); });
    Played("start\ntype a\nanswer Nej\ntype a\nanswer Ja");
    EXPECT_EQ(happenings.lines,
              (Lines{"KeyPress Text1(0) 97", "no", "Change Text1(0) a", "KeyPress Text1(0) 97", "yes", "Change Text1(0) aa"}));
}

TEST_F(PlayerTest, OnlyAnswersTimeAndLooksAreAllowedBesideABox) {
    OnKeyA([] { MsgBox("1"); });
    for (const char* command : {"type b", "key Enter", "click frmRules.Command1", "menu mnuRulesOne", "close frmRules", "kill", "start",
                                "setting A B", "file data/x", "clock 2026-09-05 14:05:30", "dialog cancel", "ls", "sound x", "pages"})
        EXPECT_TRUE(ErrorOf("start\ntype a\n" + std::string(command)).starts_with("3: ")) << command;
    EXPECT_EQ(ErrorOf("start\ntype a\nadvance 1\nshow frmRules\ncat data/x\nls log\nanswer OK"), "");
}

TEST_F(PlayerTest, ButtonThatTheBoxDoesNotHaveIsAnError) {
    OnKeyA([] { MsgBox("1"); });
    On("KeyPress Text1(0) 98", [] { MsgBox(Question("?")); });
    EXPECT_EQ(ErrorOf("start\ntype a\nanswer Ja"), "3: the message box has no button Ja");
    EXPECT_EQ(ErrorOf("start\ntype b\nanswer OK"), "3: the message box has no button OK");
    EXPECT_EQ(ErrorOf("start\ntype b\nanswer ja"), "3: the message box has no button ja");
    EXPECT_EQ(ErrorOf("start\nanswer OK"), "2: no message box is open");
}

TEST_F(PlayerTest, EndOfTheScenarioDropsWhatIsOpen) {
    OnKeyA([] {
        MsgBox("1");
        happenings.Note("never");
    });
    EXPECT_EQ(OutputOf("start\ntype a"), (Lines{"box \"vatro\" \"1\" OK -"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97"}));
    EXPECT_FALSE(ProgramRuns());
    EXPECT_EQ(FindFormSlot("frmRules")->Peek(), nullptr);
}

TEST_F(PlayerTest, ErrorBehindOpenBoxesLeavesThemAll) {
    OnKeyA([] {
        frmRulesOver->ShowModal();
        happenings.Note("never");
    });
    On("Load frmRulesOver", [] { frmRules->Timer1.SetRunning(true); });
    On("Timer", [] {
        MsgBox("1");
        happenings.Note("never");
    });
    EXPECT_EQ(ErrorOf("start\ntype a\nadvance 10\nnonsense"), "4: there is no command nonsense");
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Load frmRulesOver", "Timer"}));
    EXPECT_FALSE(ProgramRuns());
}

// --- Dialogues

TEST_F(PlayerTest, FileDialogueGivesThePathWithBackslashes) {
    OnKeyA([] {
        FileDialog dialog;
        dialog.title = "Save";
        dialog.fileName = "setlog.txt";
        happenings.Note(platform().dialogs.SaveFile(dialog));
    });
    EXPECT_EQ(OutputOf("start\ntype a\ncat log/x\ndialog \"log/min log/setlog.txt\""),
              (Lines{"dialog save \"Save\" \"setlog.txt\"", "missing log/x"}));
    EXPECT_EQ(happenings.lines[1], "log\\min log\\setlog.txt");
}

TEST_F(PlayerTest, CancelledDialogueIsAFailure) {
    OnKeyA([] {
        FileDialog dialog;
        dialog.title = "Open";
        dialog.filter = "a|*.txt";
        try {
            platform().dialogs.OpenFile(dialog);
        } catch (const RunTimeError& failure) {
            happenings.Note(std::to_string(failure.Number()));
        }
    });
    EXPECT_EQ(OutputOf("start\ntype a\ndialog cancel"), (Lines{"dialog open \"Open\" \"a|*.txt\""}));
    EXPECT_EQ(happenings.lines[1], "32755");
    EXPECT_EQ(ErrorOf("start\ntype a\ntype b"), "3: a dialogue is open");
    EXPECT_EQ(ErrorOf("start\ntype a\nanswer OK"), "3: no message box is open");
    EXPECT_EQ(ErrorOf("start\ndialog cancel"), "2: no dialogue is open");
}

TEST_F(PlayerTest, PowerFailsWhileADialogueIsOpen) {
    OnKeyA([] {
        try {
            platform().dialogs.OpenFile({});
        } catch (const RunTimeError&) {
            happenings.Note("never");
        }
    });
    EXPECT_EQ(OutputOf("start\ntype a\nkill\nshow frmRules"), (Lines{"dialog open \"\" \"\"", "frmRules unloaded"}));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97"}));
}

TEST_F(PlayerTest, HelpIsTold) {
    OnKeyA([] { platform().help.Show("Vatro.chm"); });
    EXPECT_EQ(OutputOf("start\ntype a"), (Lines{"help Vatro.chm"}));
}

// --- Time

TEST_F(PlayerTest, TicksFallDueAtTheirMoments) {
    OnKeyA([] { frmRules->Timer1.SetRunning(true); });
    On("Timer", [] {
        const DateTime now = platform().clock.Now();
        happenings.Note(std::to_string(now.minute) + ":" + std::to_string(now.second) + "." + std::to_string(now.millisecond));
        if (now.second == 10) frmRules->Timer1.SetInterval(2500);
    });
    Played("start\nadvance 0.5\ntype a\nadvance 9.9\nadvance 0.1\nadvance 5\nadvance 2.499");
    EXPECT_EQ(happenings.lines,
              (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a", "Timer", "0:10.500", "Timer", "0:13.0", "Timer", "0:15.500"}));
}

TEST_F(PlayerTest, SettingTheClockBringsNoTick) {
    OnKeyA([] { frmRules->Timer1.SetRunning(true); });
    Played("start\ntype a\nclock 2026-09-06 15:00:00\nadvance 9.999");
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a"}));
}

TEST_F(PlayerTest, SwitchingATimerAgainBeginsItsCountdownAnew) {
    OnKeyA([] { frmRules->Timer1.SetRunning(true); });
    On("KeyPress Text1(0) 98", [] { frmRules->Timer1.SetInterval(10000); });
    On("KeyPress Text1(0) 99", [] { frmRules->Timer1.SetRunning(false); });
    Played("start\ntype a\nadvance 9\ntype b\nadvance 9");
    EXPECT_EQ(std::count(happenings.lines.begin(), happenings.lines.end(), "Timer"), 0);
    Played("start\ntype a\nadvance 9\ntype b\nadvance 10\ntype c\nadvance 100");
    EXPECT_EQ(std::count(happenings.lines.begin(), happenings.lines.end(), "Timer"), 1);
}

TEST_F(PlayerTest, RestOfTheTimePassesWhileABoxOfATickIsOpen) {
    OnKeyA([] { frmRules->Timer1.SetRunning(true); });
    On("Timer", [] { MsgBox(std::to_string(platform().clock.Now().second)); });
    EXPECT_EQ(Played("start\ntype a\nadvance 25\nanswer OK\nanswer OK"),
              (std::vector<OutputLines>{{}, {}, {"box \"vatro\" \"10\" OK -", "box \"vatro\" \"20\" OK -"}, {}, {}}));
}

TEST_F(PlayerTest, NoTickComesAfterTheEnd) {
    OnKeyA([] { frmRules->Timer1.SetRunning(true); });
    On("Timer", [] { EndProgram(); });
    EXPECT_EQ(OutputOf("start\ntype a\nadvance 60\nadvance 60"), (Lines{"ended"}));
}

// --- Runs

TEST_F(PlayerTest, ProgramStartsAgainInTheSameWorld) {
    OnKeyA([] { platform().settings.Write("Settings", "UTC", "-1"); });
    EXPECT_EQ(OutputOf("start\ntype a\nkill\nstart\nclose frmRules\nstart\nsetting settings utc"), (Lines{"ended", "settings/utc \"-1\""}));
}

TEST_F(PlayerTest, FailureStopsTheProgramWithoutAnEnd) {
    OnKeyA([] { throw RunTimeError(Failure::TypeMismatch); });
    EXPECT_EQ(OutputOf("start\ntype a\nstart\nshow frmRules.Text1(0)"), (Lines{"error 13", "frmRules.Text1(0) \"\""}));
}

TEST_F(PlayerTest, EventWithoutAProgramIsAnError) {
    for (const char* command : {"type a", "key Enter", "focus frmRules.Text1(0)", "menu mnuRulesOne", "toolbar 1", "close frmRules"})
        EXPECT_EQ(ErrorOf(command), "1: no program runs") << command;
    EXPECT_EQ(ErrorOf("start\nstart"), "2: the program runs");
}

TEST_F(PlayerTest, PowerFailureLosesWhatWasNotClosed) {
    OnKeyA([] {
        Files& files = platform().files;
        files.Open(1, "log\\a.txt", FileMode::Output);
        files.PrintLine(1, "kept");
        files.Close(1);
        files.Open(1, "log\\a.txt", FileMode::Append);
        files.PrintLine(1, "lost");
    });
    EXPECT_EQ(OutputOf("start\ntype a\nkill\ncat log/a.txt"), (Lines{"|kept|"}));
}

TEST_F(PlayerTest, AnotherCopyIsToldToTheProgram) {
    OnKeyA([] { happenings.Note(platform().instance.AnotherCopyRuns() ? "another" : "alone"); });
    Played("start\ntype a\nanother-copy on\ntype a\nanother-copy off\ntype a");
    EXPECT_EQ(std::count(happenings.lines.begin(), happenings.lines.end(), "another"), 1);
    EXPECT_EQ(std::count(happenings.lines.begin(), happenings.lines.end(), "alone"), 2);
}

// --- Files

TEST_F(PlayerTest, FileHasLinesEndedByCrLf) {
    EXPECT_EQ(OutputOf("file log/a.txt\n| Vælg bånd \n|\ncat log/a.txt\nfile log/b.txt\ncat log/b.txt\nls log"),
              (Lines{"|Vælg bånd |", "||", "a.txt", "b.txt"}));
    EXPECT_EQ(world.Read("log/a.txt"), "V\xE6lg b\xE5nd \r\n\r\n");
    EXPECT_EQ(world.Read("log/b.txt"), "");
}

TEST_F(PlayerTest, MissingPathsAreToldAsTheyStand) {
    EXPECT_EQ(OutputOf("cat LOG\\None.txt\nls a:\nremove a:\nls a:/\nfile log/a.txt\nremove log/A.TXT\nremove log/A.TXT\nls log"),
              (Lines{"missing LOG\\None.txt", "missing a:/"}));
}

TEST_F(PlayerTest, FaultsHitTheProgramUntilTheyEnd) {
    OnKeyA([] {
        Files& files = platform().files;
        try {
            files.Open(1, "log\\A.txt", FileMode::Append);
            files.Close(1);
            happenings.Note("open");
            files.Delete("log\\A.txt");
            happenings.Note("deleted");
        } catch (const RunTimeError& failure) {
            files.Close(1);
            happenings.Note("failure " + std::to_string(failure.Number()));
        }
    });
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    Played("start\nfail log/a.txt 70\ntype a\nfail log/a.txt 0\nfail log 71 delete\ntype a\nfail log 0\ntype a");
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "failure 70", "KeyPress Text1(0) 97", "open", "failure 71",
                                       "KeyPress Text1(0) 97", "open", "deleted"}));
}

TEST_F(PlayerTest, OnlyKnownFaultsCanBeTold) {
    EXPECT_EQ(ErrorOf("fail log 5"), "1: 5 is no error number of a file");
    EXPECT_EQ(ErrorOf("fail log 70 read"), "1: there is no step read");
}

TEST_F(PlayerTest, SettingsAreWrittenAndRead) {
    EXPECT_EQ(OutputOf("setting Settings MyCall \"OZ1AB /P\"\nsetting Settings MyCall\nsetting SETTINGS mycall\nsetting CW MyCall"),
              (Lines{"Settings/MyCall \"OZ1AB /P\"", "SETTINGS/mycall \"OZ1AB /P\"", "CW/MyCall missing"}));
}

TEST_F(PlayerTest, NothingHasBeenHeardOrPrinted) {
    EXPECT_EQ(OutputOf("start\nsound log/s.wav\npages\nshot log/s.png\nls log"), (Lines{"sound 0", "s.wav"}));
}

// --- What cannot be delivered

TEST_F(PlayerTest, WrongWordsAreErrors) {
    EXPECT_EQ(ErrorOf("\nshow"), "2: show: an argument is missing");
    EXPECT_EQ(ErrorOf("start now"), "1: start: an argument too many");
    EXPECT_EQ(ErrorOf("start\nkey Return"), "2: there is no key Return");
    EXPECT_EQ(ErrorOf("start\nfocus frmRules.Text9"), "2: there is no control frmRules.Text9");
    EXPECT_EQ(ErrorOf("start\nfocus frmRules.Text1"), "2: there is no control frmRules.Text1");
    EXPECT_EQ(ErrorOf("start\nfocus frmNone.Text1"), "2: there is no form frmNone");
    EXPECT_EQ(ErrorOf("start\nmenu mnuNone"), "2: there is no menu item mnuNone");
    EXPECT_EQ(ErrorOf("start\nshow nothing"), "2: there is no form, control or variable nothing");
    EXPECT_EQ(ErrorOf("start\npick frmRules.List1 four"), "2: frmRules.List1 has no item \"four\"");
    EXPECT_EQ(ErrorOf("start\ndblclick frmRules.List1 3"), "2: frmRules.List1 has no item 3");
}

TEST_F(PlayerTest, ControlThatTheUserCannotReachIsAnError) {
    OnKeyA([] {
        frmRules->Command1.SetEnabled(false);
        frmRules->Check1.SetVisible(false);
        frmRules->mnuRulesOne.SetEnabled(false);
        frmRulesOver->Text1.SetText("loaded");
    });
    EXPECT_EQ(ErrorOf("start\ntype a\nclick frmRules.Command1"), "3: frmRules.Command1 is disabled");
    EXPECT_EQ(ErrorOf("start\ntype a\nclick frmRules.Check1"), "3: frmRules.Check1 is hidden");
    EXPECT_EQ(ErrorOf("start\ntype a\nmenu mnuRulesOne"), "3: mnuRulesOne is disabled or hidden");
    EXPECT_EQ(ErrorOf("start\ntype a\nclick frmRulesOver.cmdOK"), "3: frmRulesOver is hidden");
    EXPECT_EQ(ErrorOf("start\nclick frmRulesOver.cmdOK"), "2: frmRulesOver is not loaded");
    EXPECT_EQ(ErrorOf("start\nmenu mnuRules"), "2: mnuRules is a menu");
    EXPECT_EQ(ErrorOf("start\nfocus frmRules.Frame1"), "2: frmRules.Frame1 takes no focus");
}

TEST_F(PlayerTest, DisabledFormTakesNoEvents) {
    OnKeyA([] { frmRules->SetEnabled(false); });
    EXPECT_EQ(ErrorOf("start\ntype a\nfocus frmRules.Text1(1)"), "3: frmRules is disabled");
    EXPECT_EQ(ErrorOf("start\ntype ab"), "2: frmRules is disabled");
}

}  // namespace vatro
