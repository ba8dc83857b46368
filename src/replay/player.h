// SPDX-License-Identifier: MIT
//
// Plays one scenario: delivers its commands in order as events of a driver, and collects the output lines.
//
// Everything runs on one thread. When a handler opens a message box, modal form or dialogue, the following commands are played inside
// that handler until one of them closes it. Output from the remaining steps of the handler belongs to that command. If the command
// that opened the box is not finished (it has characters left to type, or time left to pass), it is finished inside the box first,
// because only the handler is blocked, not the scenario.
//
// An error ends the program in the same way as the command kill and leaves all open boxes, so that no exception of the player passes
// through code of the program or the toolkit.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disk_files.h"
#include "driver.h"
#include "fault.h"
#include "platform.h"
#include "scenario.h"
#include "scene_clock.h"
#include "scene_pages.h"
#include "scene_sound.h"
#include "settings_store.h"
#include "world.h"

namespace vatro {

class Player : private Dialogs, private Help, private Instance {
public:
    /// All arguments must outlive the player. `startProgram` is the program's start procedure.
    Player(const Scenario& scenario, const World& world, Driver& driver, std::function<void()> startProgram);
    ~Player() override;

    /// Plays the whole scenario; call once. Fails with ScenarioError at a command that cannot be played.
    void Play();
    /// The output lines of each command.
    const std::vector<OutputLines>& Outputs() const { return outputs_; }

private:
    /// An open box or file dialogue that the scenario has to close.
    struct Open {
        enum class Kind { Box, FileDialog };
        Kind kind;
        Buttons buttons = Buttons::Ok;
        bool closed = false;
        Answer answer = Answer::Ok;
        /// The file chosen in a dialogue; nothing means Cancel.
        std::optional<std::string> path = std::nullopt;
    };

    struct Verb;
    static const Verb* FindVerb(const std::string& name);

    // Implements Dialogs, Help and Instance.
    Answer Show(const MessageBox& box) override;
    std::string SaveFile(const FileDialog& dialog) override;
    std::string OpenFile(const FileDialog& dialog) override;
    void SetUpPrinter() override;
    void ShowFailure(const RunTimeError& failure) override;
    void Show(std::string_view path) override;
    bool AnotherCopyRuns() override { return anotherCopy_; }

    void PlayUntil(const std::function<bool()>& done);
    void PlayStep();
    void PlayCommand(const Command& command);
    void CheckAllowed(const Verb& verb) const;
    void Press(const KeyStroke& key);
    void PassTime();
    void NoteEnd();
    void EndSilently();
    std::string WaitFor(const std::string& line);
    void Print(const std::string& line) { outputs_[current_].push_back(line); }
    void Print(const OutputLines& lines);

    // The commands, named after their words.
    void DoClock(const Command& command);
    void DoAdvance(const Command& command);
    void DoSetting(const Command& command);
    void DoFile(const Command& command);
    void DoRemove(const Command& command);
    void DoFail(const Command& command);
    void DoAnotherCopy(const Command& command);
    void DoSoundCard(const Command& command);
    void DoStart(const Command& command);
    void DoKill(const Command& command);
    void DoType(const Command& command);
    void DoKey(const Command& command);
    void DoPaste(const Command& command);
    void DoFocus(const Command& command);
    void DoClick(const Command& command);
    void DoPick(const Command& command);
    void DoDoubleClick(const Command& command);
    void DoSpin(const Command& command);
    void DoScroll(const Command& command);
    void DoMenu(const Command& command);
    void DoToolbar(const Command& command);
    void DoClose(const Command& command);
    void DoMinimise(const Command& command);
    void DoRestore(const Command& command);
    void DoPlace(const Command& command);
    void DoAnswer(const Command& command);
    void DoDialog(const Command& command);
    void DoShow(const Command& command);
    void DoCat(const Command& command);
    void DoList(const Command& command);
    void DoPages(const Command& command);
    void DoSound(const Command& command);
    void DoShot(const Command& command);

    const Scenario& scenario_;
    const World& world_;
    Driver& driver_;
    std::function<void()> startProgram_;
    SettingsStore settings_;
    SceneClock clock_;
    SceneSound sound_{clock_};
    ScenePages pages_;
    PageSurface printer_{pages_};
    /// Sources of timed events. Of events due at the same time, the source listed first goes first.
    std::vector<DueEvents*> dueEvents_{&clock_, &sound_};
    DiskFiles disk_;
    FaultyFiles files_;
    bool anotherCopy_ = false;

    std::vector<OutputLines> outputs_;
    std::size_t next_ = 0;
    std::size_t current_ = 0;
    /// The rest of the current command: keys still to press, and the time until which the clock runs.
    std::deque<KeyStroke> keys_;
    std::optional<SceneTime> until_;
    /// The open items; the one in front is last.
    std::vector<Open*> open_;
    /// A run has begun, and its end has not been recorded yet.
    bool started_ = false;
    /// The run was ended by kill, by a failure or by the end of the scenario, so its end is not reported in the output.
    bool silentEnd_ = false;
    std::optional<ScenarioError> error_;
};

}  // namespace vatro
