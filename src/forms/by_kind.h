// SPDX-License-Identifier: MIT
//
// What is done differently for each kind of control.
//
//   ByKind(control, [](Button& button) { button.Press(); },
//                   [](TextControl& text) { text.SelectAll(); },
//                   [](Control&) {});
//
// The control tells its kind by a virtual call, and the overloads are chosen when this is compiled: the case of the kind itself, or
// else that of the nearest class it is derived from. Without a case for Control every kind must have one, so a new kind of control
// does not compile before somebody has decided what becomes of it.
#pragma once

#include <utility>

#include "controls.h"

namespace vatro {

template <class... Case>
struct Cases : Case... {
    using Case::operator()...;
};

/// Calls the case for the control's kind and returns what it returns. All cases return the same type.
template <class... Case>
decltype(auto) ByKind(Control& control, Case... cases) {
    return std::visit([all = Cases<Case...>{std::move(cases)...}](auto* own) -> decltype(auto) { return all(*own); }, control.Kind());
}

template <class... Case>
decltype(auto) ByKind(const Control& control, Case... cases) {
    return std::visit([all = Cases<Case...>{std::move(cases)...}](const auto* own) -> decltype(auto) { return all(*own); }, control.Kind());
}

/// The control as a C, or nothing if it is none (or there is no control). For the one question whether it is of this kind.
template <class C>
C* As(Control* control) {
    if (control == nullptr) return nullptr;
    return ByKind(
        *control, [](C& own) -> C* { return &own; }, [](Control&) -> C* { return nullptr; });
}

template <class C>
const C* As(const Control* control) {
    if (control == nullptr) return nullptr;
    return ByKind(
        *control, [](const C& own) -> const C* { return &own; }, [](const Control&) -> const C* { return nullptr; });
}

}  // namespace vatro
