// SPDX-License-Identifier: MIT
//
// Code that differs for each kind of control:
//
//   ByKind(control, [](Button& button) { button.Press(); },
//                   [](TextControl& text) { text.SelectAll(); },
//                   [](Control&) {});
//
// The control reports its kind through a virtual call, and the overload is chosen at compile time: the case for the kind itself,
// or else the case for its nearest base class. Without a case for Control, every kind needs a case. A new kind of control then
// does not compile until somebody has decided how to handle it.
#pragma once

#include <utility>

#include "controls.h"

namespace vatro {

template <class... Case>
struct Cases : Case... {
    using Case::operator()...;
};

/// Calls the case for the control's kind and returns its result. All cases must return the same type.
template <class... Case>
decltype(auto) ByKind(Control& control, Case... cases) {
    return std::visit([all = Cases<Case...>{std::move(cases)...}](auto* own) -> decltype(auto) { return all(*own); }, control.Kind());
}

template <class... Case>
decltype(auto) ByKind(const Control& control, Case... cases) {
    return std::visit([all = Cases<Case...>{std::move(cases)...}](const auto* own) -> decltype(auto) { return all(*own); }, control.Kind());
}

/// The control as a C, or null if it is of another kind or `control` is null. Use it where only this one kind matters.
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
