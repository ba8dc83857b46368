// SPDX-License-Identifier: MIT
#include "control_names.h"

#include <charconv>

#include "by_kind.h"
#include "codepage.h"
#include "driver.h"

namespace vatro {

namespace {

/// Splits "Text1(1)" into name and index. Returns false if the text in brackets is not an index.
bool SplitIndex(std::string_view text, std::string& name, int& index) {
    index = -1;
    const std::size_t open = text.find('(');
    name = text.substr(0, open);
    if (open == std::string_view::npos) return !name.empty();
    const char* const first = text.data() + open + 1;
    const char* const last = text.data() + text.size() - 1;
    if (text.back() != ')' || first >= last) return false;
    const auto [end, error] = std::from_chars(first, last, index);
    return error == std::errc() && end == last && index >= 0 && !name.empty();
}

}  // namespace

bool IsControlName(std::string_view text) {
    return text.find('.') != std::string_view::npos;
}

ControlName ParseControlName(std::string_view text) {
    ControlName name;
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || point == 0 || !SplitIndex(text.substr(point + 1), name.control, name.index))
        throw CannotDeliver(ToUtf8(text) + " is no name of a control");
    name.form = text.substr(0, point);
    return name;
}

Form* FindForm(std::string_view name) {
    const FormSlotBase* slot = FindFormSlot(name);
    if (slot == nullptr) throw CannotDeliver("there is no form " + ToUtf8(name));
    return slot->Peek();
}

Control* FindControl(std::string_view name) {
    const ControlName parsed = ParseControlName(name);
    const Form* form = FindForm(parsed.form);
    if (form == nullptr) return nullptr;
    Control* control = form->Find(parsed.control, parsed.index);
    if (control == nullptr) throw CannotDeliver("there is no control " + ToUtf8(name));
    return control;
}

MenuItem& FindMenuItem(std::string_view name) {
    std::string item;
    int index = -1;
    if (!SplitIndex(name, item, index)) throw CannotDeliver(ToUtf8(name) + " is no name of a menu item");
    for (Form* form : LoadedForms())
        if (auto* found = As<MenuItem>(form->Find(item, index))) return *found;
    throw CannotDeliver("there is no menu item " + ToUtf8(name));
}

Toolbar& FindToolbar() {
    for (Form* form : LoadedForms())
        for (Control* control : form->Controls())
            if (auto* toolbar = As<Toolbar>(control)) return *toolbar;
    throw CannotDeliver("there is no toolbar");
}

std::string NameOf(const Control& control) {
    return ToUtf8(control.Parent().Name() + "." + control.FullName());
}

}  // namespace vatro
