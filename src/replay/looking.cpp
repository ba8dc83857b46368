// SPDX-License-Identifier: MIT
#include "looking.h"

#include <set>

#include "by_kind.h"
#include "codepage.h"
#include "control_names.h"
#include "scene_font.h"
#include "variables.h"

namespace vatro {

namespace {

std::string Count(int items) {
    return " " + std::to_string(items) + " items";
}

void AddItems(OutputLines& lines, const std::vector<std::string>& items) {
    for (const std::string& item : items) lines.push_back(Quoted(item));
}

template <class Seen>
void Ask(Driver& driver, const Seen& seen, const std::string& name) {
    const std::string mismatch = driver.Mismatch(seen);
    if (!mismatch.empty()) throw CannotDeliver(name + " is not shown as the program holds it: " + mismatch);
}

OutputLines ShowMenu(const std::string& name, Driver& driver) {
    const MenuItem& item = FindMenuItem(name);
    Ask(driver, item, ToUtf8(name));
    return {ToUtf8(name) + " " + Quoted(item.Caption()) + (item.Enabled() ? " enabled" : " disabled") + (item.Ticked() ? " ticked" : "")};
}

OutputLines ShowToolbar(Driver& driver) {
    const Toolbar& toolbar = FindToolbar();
    Ask(driver, toolbar, NameOf(toolbar));
    std::set<int> pressed;
    for (const Toolbar::ToolButton& button : toolbar.ToolButtons())
        if (button.pressed) pressed.insert(button.index);
    std::string line = "toolbar";
    for (const int index : pressed) line += " " + std::to_string(index);
    return {line};
}

OutputLines ShowFocus(Driver& driver) {
    const Form* form = ActiveForm();
    if (form == nullptr) return {"focus -"};
    Ask(driver, *form, ToUtf8(form->Name()));
    const Control* control = form->ActiveControl();
    return {control == nullptr ? "focus -" : "focus " + NameOf(*control)};
}

OutputLines ShowForm(const std::string& name, bool place, Driver& driver) {
    const Form* form = FindForm(name);
    std::string line = ToUtf8(name);
    if (form == nullptr) return {line + " unloaded"};
    Ask(driver, *form, line);
    if (place) {
        for (const int twips : {form->Left(), form->Top(), form->Width(), form->Height()}) line += " " + std::to_string(twips);
        return {line};
    }
    line += " " + Quoted(form->Caption());
    if (!form->Visible()) return {line + " hidden"};
    return {line + (form->State() == WindowState::Minimised ? " minimised" : " shown")};
}

OutputLines ShowNamedControl(const std::string& name, bool state, Driver& driver) {
    const Control* control = FindControl(name);
    if (control == nullptr) return {ToUtf8(ParseControlName(name).form) + " unloaded"};
    Ask(driver, *control, ToUtf8(name));
    return state ? ShowControlState(*control) : ShowControl(*control);
}

}  // namespace

OutputLines ShowControl(const Control& control) {
    const std::string name = NameOf(control);
    const auto line = [&name](const std::string& rest) { return OutputLines{name + " " + rest}; };
    const auto withItems = [](OutputLines lines, const std::vector<std::string>& items) {
        AddItems(lines, items);
        return lines;
    };
    return ByKind(
        control,
        [&](const ListBox& list) {
            return withItems({name + Count(list.ListCount()) + " selected " + std::to_string(list.ListIndex())}, list.Items());
        },
        [&](const ComboBox& combo) { return withItems({name + " " + Quoted(combo.Text()) + Count(combo.ListCount())}, combo.Items()); },
        [&](const TextControl& field) { return line(Quoted(field.Text())); },
        [&](const Label& label) { return line(Quoted(label.Caption())); },
        [&](const Button& button) { return line(Quoted(button.Caption())); },
        [&](const Frame& frame) { return line(Quoted(frame.Caption())); },
        [&](const CheckBox& box) { return line(box.Value() ? "on" : "off"); },
        [&](const OptionButton& option) { return line(option.Value() ? "on" : "off"); },
        [&](const ScrollBar& slide) { return line(std::to_string(slide.Value()) + " of " + std::to_string(slide.Limits().max)); },
        [&](const StatusBar& bar) {
            std::string panels = name;
            for (const std::string& panel : bar.Panels()) panels += " " + Quoted(panel);
            return OutputLines{panels};
        },
        [&](const ProgressBar& bar) { return line(std::to_string(bar.Value()) + " of " + std::to_string(bar.Max())); },
        [&](const Control&) -> OutputLines { throw CannotDeliver(name + " has nothing to show"); });
}

OutputLines ShowControlState(const Control& control) {
    std::string line = NameOf(control) + (control.Enabled() ? " enabled" : " disabled") + (control.Visible() ? " shown" : " hidden");
    ByKind(
        control,
        [&](const TextControl& field) {
            if (field.MaxLength() > 0) line += " limit " + std::to_string(field.MaxLength());
            line += " selected " + std::to_string(field.SelStart()) + " " + std::to_string(field.SelLength());
        },
        [&](const Label& label) {
            const Font& font = label.LabelFont();
            line += " colour " + std::to_string(label.ForeColour()) + " back " + std::to_string(label.BackColour()) +
                    (label.Opaque() ? " opaque" : " transparent") + " font " + Quoted(font.name) + " " + Shortest(font.size) + " " +
                    StyleOf(font);
        },
        [](const Control&) {});
    if (!control.ToolTip().empty()) line += " tip " + Quoted(control.ToolTip());
    return {line};
}

OutputLines Show(const std::vector<std::string>& arguments, Driver& driver) {
    const std::string& name = arguments.at(0);
    const std::string what = arguments.size() > 1 ? arguments[1] : std::string{};
    if (name == "menu" && !what.empty()) return ShowMenu(what, driver);
    if (what.empty() && name == "toolbar") return ShowToolbar(driver);
    if (what.empty() && name == "focus") return ShowFocus(driver);
    if (IsControlName(name)) {
        if (what.empty() || what == "state") return ShowNamedControl(name, !what.empty(), driver);
    } else if (FindFormSlot(name) != nullptr) {
        if (what.empty() || what == "place") return ShowForm(name, !what.empty(), driver);
    } else if (what.empty()) {
        if (const auto value = VariableValue(name)) return {ToUtf8(name) + " " + *value};
        throw CannotDeliver("there is no form, control or variable " + ToUtf8(name));
    }
    throw CannotDeliver("cannot show " + ToUtf8(name) + " " + ToUtf8(what));
}

OutputLines ShowLines(std::string_view content) {
    OutputLines lines;
    while (!content.empty()) {
        const std::size_t end = content.find_first_of("\r\n");
        const std::string line = "|" + ToUtf8(content.substr(0, end)) + "|";
        if (end == std::string_view::npos) {
            lines.push_back(line + " EOF");
            break;
        }
        const bool carriageReturn = content[end] == '\r';
        const bool both = carriageReturn && end + 1 < content.size() && content[end + 1] == '\n';
        lines.push_back(both ? line : line + (carriageReturn ? " CR" : " LF"));
        content.remove_prefix(end + (both ? 2 : 1));
    }
    return lines;
}

OutputLines Cat(const World& world, const std::string& path) {
    const auto content = world.Read(path);
    return content ? ShowLines(*content) : OutputLines{"missing " + ToUtf8(path)};
}

OutputLines List(const World& world, const std::string& directory) {
    const auto names = world.List(directory);
    if (!names) return {"missing " + ToUtf8(directory)};
    OutputLines lines;
    for (const std::string& name : *names) lines.push_back(ToUtf8(name));
    return lines;
}

std::string BoxLine(const MessageBox& box) {
    std::string line = "box " + Quoted(box.title.empty() ? "vatro" : box.title) + " " + Quoted(box.text) + " ";
    if (box.buttons == Buttons::Ok)
        line += "OK";
    else
        line += box.defaultNo ? "Ja|Nej*" : "Ja*|Nej";
    switch (box.icon) {
        case Icon::None:
            return line + " -";
        case Icon::Information:
            return line + " information";
        case Icon::Question:
            return line + " question";
        case Icon::Exclamation:
            return line + " exclamation";
        case Icon::Critical:
            return line + " critical";
    }
    return line;
}

}  // namespace vatro
