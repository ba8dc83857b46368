// SPDX-License-Identifier: MIT
//
// The kinds of control that there are.
//
// Code that treats each kind in a way of its own, as a front does, is told the kind by the control itself: see by_kind.h.
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

/// A control, as what it is.
using ControlKind = AllControlKinds::Pointer;
using ReadOnlyControlKind = AllControlKinds::ReadOnlyPointer;

}  // namespace vatro
