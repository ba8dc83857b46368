// SPDX-License-Identifier: MIT
//
// The list of all kinds of control.
//
// Code that handles each kind differently, as a front does, asks the control for its kind; see by_kind.h.
#pragma once

#include <variant>

namespace vatro {

class Button;
class CheckBox;
class ComboBox;
class Frame;
class Label;
class ListBox;
class MenuItem;
class OptionButton;
class Picture;
class ProgressBar;
class ScrollBar;
class StatusBar;
class TextBox;
class TextView;
class Timer;
class Toolbar;
class UpDown;

template <class... Kinds>
struct ControlKinds {
    using Pointer = std::variant<Kinds*...>;
    using ReadOnlyPointer = std::variant<const Kinds*...>;
};

using AllControlKinds = ControlKinds<Button, CheckBox, ComboBox, Frame, Label, ListBox, MenuItem, OptionButton, Picture, ProgressBar,
                                     ScrollBar, StatusBar, TextBox, TextView, Timer, Toolbar, UpDown>;

/// A pointer to a control as its concrete type.
using ControlKind = AllControlKinds::Pointer;
using ReadOnlyControlKind = AllControlKinds::ReadOnlyPointer;

}  // namespace vatro
