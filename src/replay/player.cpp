// SPDX-License-Identifier: MIT
#include "player.h"

#include <algorithm>
#include <utility>

#include "codepage.h"
#include "looking.h"
#include "player_verbs.h"
#include "program.h"

namespace vatro {

Player::Player(const Scenario& scenario, const World& world, Driver& driver, std::function<void()> startProgram)
    : scenario_(scenario),
      world_(world),
      driver_(driver),
      startProgram_(std::move(startProgram)),
      settings_(world.SettingsFile()),
      disk_([&world](std::string_view path) { return world.Path(path); }, World::kSeparator, std::string(World::kCurrentDirectory)),
      files_(disk_),
      outputs_(scenario.Commands().size()) {
    driver_.playUntil = [this](const std::function<bool()>& done) { PlayUntil(done); };
    InstallPlatform(driver_.ProgramFront(), {.dialogs = *this,
                                             .settings = settings_,
                                             .files = files_,
                                             .clock = clock_,
                                             .help = *this,
                                             .instance = *this,
                                             .sound = sound_,
                                             .printer = printer_,
                                             .version = {VATRO_VERSION_MAJOR, VATRO_VERSION_MINOR, VATRO_VERSION_PATCH}});
}

Player::~Player() {
    EndSilently();
    driver_.playUntil = nullptr;
}

void Player::Play() {
    PlayUntil([] { return false; });
    EndSilently();
    if (error_) throw ScenarioError(*error_);
}

void Player::PlayUntil(const std::function<bool()>& done) {
    while (!error_ && !ProgramEnding() && !done()) {
        if (keys_.empty() && !until_ && next_ == scenario_.Commands().size()) {
            // The scenario is over, even if something is still open.
            EndSilently();
            return;
        }
        try {
            PlayStep();
        } catch (const std::exception& reason) {
            error_ = ScenarioError(scenario_.Commands()[current_].line, reason.what());
            EndSilently();
        }
        NoteEnd();
    }
}

void Player::PlayStep() {
    if (!keys_.empty()) {
        const KeyStroke key = keys_.front();
        keys_.pop_front();
        Press(key);
    } else if (until_) {
        PassTime();
    } else {
        current_ = next_++;
        PlayCommand(scenario_.Commands()[current_]);
    }
    driver_.Settle();
}

void Player::PlayCommand(const Command& command) {
    const Verb* verb = FindVerb(command.name);
    if (verb == nullptr) throw CannotDeliver("there is no command " + command.name);
    const std::size_t count = verb->takesRest ? (command.hasRest ? 1U : 0U) : command.arguments.size();
    if (count < verb->fewest) throw CannotDeliver(command.name + ": an argument is missing");
    if (count > verb->most) throw CannotDeliver(command.name + ": an argument too many");
    CheckAllowed(*verb);
    (this->*verb->run)(command);
}

void Player::CheckAllowed(const Verb& verb) const {
    if (!open_.empty() && open_.back()->kind == Open::Kind::Box && !verb.besideBox) throw CannotDeliver("a message box is open");
    if (verb.kind != Verb::Kind::Event) return;
    if (!ProgramRuns()) throw CannotDeliver("no program runs");
    if (!open_.empty() && open_.back()->kind == Open::Kind::FileDialog) throw CannotDeliver("a dialogue is open");
}

void Player::Press(const KeyStroke& key) {
    if (!ProgramRuns()) throw CannotDeliver("no program runs");
    if (!open_.empty()) throw CannotDeliver("a message box or dialogue is open");
    const Form* form = ActiveForm();
    if (form == nullptr) throw CannotDeliver("no form is active");
    CheckReachable(form, form->Name());
    const Control* control = form->ActiveControl();
    if (control != nullptr && !control->Enabled()) throw CannotDeliver(NameOf(*control) + " is disabled");
    driver_.Press(key);
}

void Player::PassTime() {
    DueEvents* source = nullptr;
    SceneTime due = *until_;
    for (DueEvents* events : dueEvents_) {
        const auto next = events->NextDue();
        if (!next || *next > due || (source != nullptr && *next == due)) continue;
        source = events;
        due = *next;
    }
    clock_.MoveTo(due);
    if (source == nullptr)
        until_.reset();
    else
        source->DeliverNext();
}

void Player::NoteEnd() {
    if (!started_ || ProgramRuns() || ProgramEnding()) return;
    started_ = false;
    for (const int number : {1, 2}) {
        try {
            files_.Close(number);
        } catch (const RunTimeError&) {
            // The program has ended; nothing is left to handle the failure.
        }
    }
    if (!silentEnd_) Print("ended");
}

void Player::EndSilently() {
    silentEnd_ = true;
    if (!ProgramRuns()) return;
    files_.Abandon();
    Dispatch([] { EndProgram(); });
}

void Player::Print(const OutputLines& lines) {
    OutputLines& output = outputs_[current_];
    output.insert(output.end(), lines.begin(), lines.end());
}

// --- Requests from the program

Answer Player::Show(const MessageBox& box) {
    Print(BoxLine(box));
    Open open{.kind = Open::Kind::Box, .buttons = box.buttons};
    open_.push_back(&open);
    driver_.OpenBox(box);
    PlayUntil([&] { return open.closed; });
    if (!open.closed) driver_.DropBox();
    open_.pop_back();
    LeaveIfEnding();
    return open.answer;
}

std::string Player::SaveFile(const FileDialog& dialog) {
    return WaitFor("dialog save " + Quoted(dialog.title) + " " + Quoted(dialog.fileName));
}

std::string Player::OpenFile(const FileDialog& dialog) {
    return WaitFor("dialog open " + Quoted(dialog.title) + " " + Quoted(dialog.filter));
}

void Player::SetUpPrinter() {
    WaitFor("dialog printer");
}

std::string Player::WaitFor(const std::string& line) {
    Print(line);
    Open open{.kind = Open::Kind::FileDialog};
    open_.push_back(&open);
    PlayUntil([&] { return open.closed; });
    open_.pop_back();
    LeaveIfEnding();
    if (!open.path) throw RunTimeError(Failure::Cancelled);
    return *open.path;
}

void Player::ShowFailure(const RunTimeError& failure) {
    Print("error " + std::to_string(failure.Number()));
    silentEnd_ = true;
}

void Player::Show(std::string_view path) {
    Print("help " + ToUtf8(path));
}

}  // namespace vatro
