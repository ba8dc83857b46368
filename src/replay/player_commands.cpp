// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <utility>

#include "by_kind.h"
#include "codepage.h"
#include "looking.h"
#include "player_verbs.h"
#include "program.h"
#include "wav.h"
#include "words.h"

namespace vatro {

const Player::Verb* Player::FindVerb(const std::string& name) {
    using enum Verb::Kind;
    static constexpr std::size_t kAny = 1;
    static constexpr std::array kVerbs{
        Verb{"clock", Setting, 2, 2, &Player::DoClock},
        Verb{"advance", Setting, 1, 1, &Player::DoAdvance, true},
        Verb{"setting", Setting, 2, 3, &Player::DoSetting},
        Verb{"file", Setting, 1, 1, &Player::DoFile},
        Verb{"remove", Setting, 1, 1, &Player::DoRemove},
        Verb{"fail", Setting, 2, 3, &Player::DoFail},
        Verb{"another-copy", Setting, 1, 1, &Player::DoAnotherCopy},
        Verb{"sound-card", Setting, 1, 1, &Player::DoSoundCard},
        Verb{"start", Setting, 0, 0, &Player::DoStart},
        Verb{"kill", Setting, 0, 0, &Player::DoKill},
        Verb{"type", Event, 1, kAny, &Player::DoType, false, true},
        Verb{"key", Event, 1, 1, &Player::DoKey},
        Verb{"paste", Event, 0, kAny, &Player::DoPaste, false, true},
        Verb{"focus", Event, 1, 1, &Player::DoFocus},
        Verb{"click", Event, 1, 1, &Player::DoClick},
        Verb{"pick", Event, 2, 2, &Player::DoPick},
        Verb{"dblclick", Event, 2, 2, &Player::DoDoubleClick},
        Verb{"spin", Event, 2, 2, &Player::DoSpin},
        Verb{"scroll", Event, 2, 2, &Player::DoScroll},
        Verb{"menu", Event, 1, 1, &Player::DoMenu},
        Verb{"toolbar", Event, 1, 1, &Player::DoToolbar},
        Verb{"close", Event, 1, 1, &Player::DoClose},
        Verb{"minimise", Event, 1, 1, &Player::DoMinimise},
        Verb{"restore", Event, 1, 1, &Player::DoRestore},
        Verb{"place", Event, 5, 5, &Player::DoPlace},
        Verb{"answer", Setting, 1, 1, &Player::DoAnswer, true},
        Verb{"dialog", Setting, 1, 1, &Player::DoDialog},
        Verb{"show", Looking, 1, 2, &Player::DoShow, true},
        Verb{"cat", Looking, 1, 1, &Player::DoCat, true},
        Verb{"ls", Looking, 1, 1, &Player::DoList, true},
        Verb{"pages", Looking, 0, 0, &Player::DoPages},
        Verb{"sound", Looking, 1, 1, &Player::DoSound},
        Verb{"shot", Looking, 1, 1, &Player::DoShot},
    };
    const auto verb = std::find_if(kVerbs.begin(), kVerbs.end(), [&](const Verb& v) { return v.name == name; });
    return verb == kVerbs.end() ? nullptr : &*verb;
}

// --- Setting up

void Player::DoClock(const Command& command) {
    clock_.Set(ReadDateTime(command.arguments[0], command.arguments[1]));
}

void Player::DoAdvance(const Command& command) {
    until_ = clock_.Passed() + ReadSeconds(command.arguments[0]);
}

void Player::DoSetting(const Command& command) {
    const std::string& section = command.arguments[0];
    const std::string& key = command.arguments[1];
    if (command.arguments.size() > 2) {
        settings_.Write(section, key, command.arguments[2]);
        return;
    }
    const auto text = settings_.Read(section, key);
    Print(ToUtf8(section + "/" + key) + " " + (text ? Quoted(*text) : "missing"));
}

void Player::DoFile(const Command& command) {
    std::string content;
    for (const std::string& line : command.content) content += line + "\r\n";
    if (!world_.Write(command.arguments[0], content)) throw CannotDeliver("cannot write " + ToUtf8(command.arguments[0]));
}

void Player::DoRemove(const Command& command) {
    // A file that does not exist is not an error.
    world_.Remove(command.arguments[0]);
}

void Player::DoFail(const Command& command) {
    using Step = FaultyFiles::Step;
    static constexpr std::array kNumbers{0, 53, 61, 70, 71, 75, 76};
    static constexpr std::array kSteps{std::pair{"open", Step::Open},     std::pair{"write", Step::Write},
                                       std::pair{"close", Step::Close},   std::pair{"delete", Step::Delete},
                                       std::pair{"rename", Step::Rename}, std::pair{"copy", Step::Copy}};
    const int number = ReadInteger(command.arguments[1]);
    if (std::find(kNumbers.begin(), kNumbers.end(), number) == kNumbers.end())
        throw CannotDeliver(command.arguments[1] + " is no error number of a file");
    std::optional<Step> step;
    if (command.arguments.size() > 2) {
        const auto found =
            std::find_if(kSteps.begin(), kSteps.end(), [&](const auto& named) { return named.first == command.arguments[2]; });
        if (found == kSteps.end()) throw CannotDeliver("there is no step " + ToUtf8(command.arguments[2]));
        step = found->second;
    }
    files_.Fail(command.arguments[0], number, step);
}

void Player::DoAnotherCopy(const Command& command) {
    anotherCopy_ = ReadSwitch(command.arguments[0]);
}

void Player::DoSoundCard(const Command& command) {
    sound_.SetCard(ReadSwitch(command.arguments[0]));
}

void Player::DoStart(const Command&) {
    if (ProgramRuns()) throw CannotDeliver("the program runs");
    started_ = true;
    silentEnd_ = false;
    sound_.TakeHeard();
    BeginProgram();
    Dispatch(startProgram_);
}

void Player::DoKill(const Command&) {
    EndSilently();
}

// --- Events

void CheckReachable(const Form* form, const std::string& name) {
    if (form == nullptr) throw CannotDeliver(ToUtf8(name) + " is not loaded");
    if (!form->Visible()) throw CannotDeliver(ToUtf8(name) + " is hidden");
    if (!form->Enabled()) throw CannotDeliver(ToUtf8(name) + " is disabled");
    if (!form->Reachable()) throw CannotDeliver(ToUtf8(name) + " is blocked by " + ToUtf8(ModalForm()->Name()));
}

Control& ReachableControl(const std::string& name) {
    Control* control = FindControl(name);
    const std::string form = ParseControlName(name).form;
    CheckReachable(control == nullptr ? nullptr : &control->Parent(), form);
    if (!control->Visible()) throw CannotDeliver(ToUtf8(name) + " is hidden");
    if (!control->Enabled()) throw CannotDeliver(ToUtf8(name) + " is disabled");
    return *control;
}

namespace {

Form& ReachableForm(const std::string& name) {
    Form* form = FindForm(name);
    CheckReachable(form, name);
    return *form;
}

/// The items of a list or combo box.
const std::vector<std::string>& ItemsOf(const Control& control) {
    using Items = const std::vector<std::string>&;
    return ByKind(
        control, [](const ListBox& list) -> Items { return list.Items(); }, [](const ComboBox& combo) -> Items { return combo.Items(); },
        [](const Control& other) -> Items { throw CannotDeliver(NameOf(other) + " is neither a list nor a combo box"); });
}

int CheckRow(int row, const Control& control) {
    if (row < 0 || static_cast<std::size_t>(row) >= ItemsOf(control).size())
        throw CannotDeliver(NameOf(control) + " has no item " + std::to_string(row));
    return row;
}

/// The row for "#2", or for the text of an item.
int RowOf(const std::string& text, const Control& control) {
    if (text.size() > 1 && text[0] == '#' && text.find_first_not_of("0123456789", 1) == std::string::npos)
        return CheckRow(ReadInteger(std::string_view(text).substr(1)), control);
    const auto& items = ItemsOf(control);
    const auto found = std::find(items.begin(), items.end(), text);
    if (found == items.end()) throw CannotDeliver(NameOf(control) + " has no item " + Quoted(text));
    return static_cast<int>(found - items.begin());
}

}  // namespace

void Player::DoType(const Command& command) {
    const Form* form = ActiveForm();
    if (form == nullptr || form->ActiveControl() == nullptr) throw CannotDeliver("no control has the focus");
    for (std::size_t i = 0; i < command.rest.size(); ++i) {
        // CR LF counts as one key.
        if (command.rest[i] == '\n' && i > 0 && command.rest[i - 1] == '\r') continue;
        keys_.push_back(KeyOf(command.rest[i]));
    }
}

void Player::DoKey(const Command& command) {
    keys_.push_back(ReadKey(command.arguments[0]));
}

void Player::DoPaste(const Command& command) {
    const Form* form = ActiveForm();
    if (form == nullptr) throw CannotDeliver("no form is active");
    CheckReachable(form, form->Name());
    const auto* field = As<TextControl>(form->ActiveControl());
    if (field == nullptr) throw CannotDeliver("no text field has the focus");
    if (!field->Enabled()) throw CannotDeliver(NameOf(*field) + " is disabled");
    driver_.Paste(command.rest);
}

void Player::DoFocus(const Command& command) {
    Control& control = ReachableControl(command.arguments[0]);
    if (!control.TakesFocus()) throw CannotDeliver(NameOf(control) + " takes no focus");
    driver_.Focus(control);
}

void Player::DoClick(const Command& command) {
    const std::string& name = command.arguments[0];
    if (!IsControlName(name)) {
        driver_.ClickForm(ReachableForm(name));
        return;
    }
    ByKind(
        ReachableControl(name), [this](TextControl& field) { driver_.Focus(field); },
        [this](CaptionedControl& pressed) { driver_.Click(pressed); }, [this](Label& label) { driver_.Click(label); },
        [this](Picture& picture) { driver_.Click(picture); },
        [](Control& other) { throw CannotDeliver(NameOf(other) + " is nothing to click on"); });
}

void Player::DoPick(const Command& command) {
    Control& control = ReachableControl(command.arguments[0]);
    driver_.Pick(control, RowOf(command.arguments[1], control));
}

void Player::DoDoubleClick(const Command& command) {
    Control& control = ReachableControl(command.arguments[0]);
    auto* list = As<ListBox>(&control);
    if (list == nullptr) throw CannotDeliver(NameOf(control) + " is no list");
    driver_.DoubleClick(*list, CheckRow(ReadInteger(command.arguments[1]), *list));
}

void Player::DoSpin(const Command& command) {
    Control& control = ReachableControl(command.arguments[0]);
    auto* arrows = As<UpDown>(&control);
    if (arrows == nullptr) throw CannotDeliver(NameOf(control) + " has no arrows");
    const std::string& way = command.arguments[1];
    if (way != "up" && way != "down") throw CannotDeliver("spin: " + way + " is neither up nor down");
    driver_.Spin(*arrows, way == "up");
}

void Player::DoScroll(const Command& command) {
    Control& control = ReachableControl(command.arguments[0]);
    auto* bar = As<ScrollBar>(&control);
    if (bar == nullptr) throw CannotDeliver(NameOf(control) + " is no scroll bar");
    const int value = ReadInteger(command.arguments[1]);
    if (value < bar->Limits().min || value > bar->Limits().max)
        throw CannotDeliver(NameOf(control) + " ends before " + std::to_string(value));
    driver_.Scroll(*bar, value);
}

void Player::DoMenu(const Command& command) {
    MenuItem& item = FindMenuItem(command.arguments[0]);
    CheckReachable(&item.Parent(), item.Parent().Name());
    if (!item.Entries().empty()) throw CannotDeliver(ToUtf8(item.FullName()) + " is a menu");
    if (!item.Choosable()) throw CannotDeliver(ToUtf8(item.FullName()) + " is disabled or hidden");
    driver_.Choose(item);
}

void Player::DoToolbar(const Command& command) {
    Toolbar& toolbar = FindToolbar();
    CheckReachable(&toolbar.Parent(), toolbar.Parent().Name());
    const int index = ReadInteger(command.arguments[0]);
    const auto& buttons = toolbar.ToolButtons();
    const bool there = toolbar.Enabled() && toolbar.Visible() &&
                       std::any_of(buttons.begin(), buttons.end(), [&](const auto& b) { return b.index == index && b.group != 0; });
    if (!there) throw CannotDeliver("the toolbar has no button " + command.arguments[0]);
    driver_.PressTool(toolbar, index);
}

void Player::DoClose(const Command& command) {
    driver_.Close(ReachableForm(command.arguments[0]));
}

void Player::DoMinimise(const Command& command) {
    driver_.Minimise(ReachableForm(command.arguments[0]));
}

void Player::DoRestore(const Command& command) {
    driver_.Restore(ReachableForm(command.arguments[0]));
}

void Player::DoPlace(const Command& command) {
    Form& form = ReachableForm(command.arguments[0]);
    std::array<int, 4> twips{};
    for (std::size_t i = 0; i < twips.size(); ++i) twips[i] = ReadInteger(command.arguments[i + 1]);
    driver_.Place(form, twips[0], twips[1], twips[2], twips[3]);
}

void Player::DoAnswer(const Command& command) {
    if (open_.empty() || open_.back()->kind != Open::Kind::Box) throw CannotDeliver("no message box is open");
    static constexpr std::array kAnswers{std::pair{"OK", Answer::Ok}, std::pair{"Ja", Answer::Yes}, std::pair{"Nej", Answer::No}};
    const auto found =
        std::find_if(kAnswers.begin(), kAnswers.end(), [&](const auto& named) { return named.first == command.arguments[0]; });
    Open& box = *open_.back();
    if (found == kAnswers.end() || (found->second == Answer::Ok) != (box.buttons == Buttons::Ok))
        throw CannotDeliver("the message box has no button " + ToUtf8(command.arguments[0]));
    driver_.AnswerBox(found->second);
    box.answer = found->second;
    box.closed = true;
}

void Player::DoDialog(const Command& command) {
    if (open_.empty()) throw CannotDeliver("no dialogue is open");
    Open& dialog = *open_.back();
    if (command.arguments[0] != "cancel") {
        dialog.path = command.arguments[0];
        std::replace(dialog.path->begin(), dialog.path->end(), '/', World::kSeparator);
    }
    dialog.closed = true;
}

// --- Looking

void Player::DoShow(const Command& command) {
    Print(vatro::Show(command.arguments, driver_));
}

void Player::DoCat(const Command& command) {
    Print(Cat(world_, command.arguments[0]));
}

void Player::DoList(const Command& command) {
    Print(List(world_, command.arguments[0]));
}

void Player::DoPages(const Command&) {
    Print(pages_.TakeJobs());
}

void Player::DoSound(const Command& command) {
    const std::vector<std::int16_t> heard = sound_.TakeHeard();
    if (!world_.Write(command.arguments[0], WavFile(heard))) throw CannotDeliver("cannot write " + ToUtf8(command.arguments[0]));
    Print("sound " + std::to_string(heard.size()));
}

void Player::DoShot(const Command& command) {
    const std::filesystem::path path = world_.Found(command.arguments[0]);
    const std::u8string file = path.u8string();
    driver_.Shot(std::string(file.begin(), file.end()));
}

}  // namespace vatro
