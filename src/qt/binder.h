// SPDX-License-Identifier: MIT
//
// Binds each control of a form to the widget with its name: Text1(1) to Text1_1.
//
// There is one Bind function for each pair of control and widget. It first shows the control's state and then makes the connections.
// Only user actions go from the widget to the control; changes in the control come back through its mirror. Two kinds of problem are
// reported: a control that does not have exactly one widget, and a named widget of a bindable class that no control owns.
#pragma once

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QWidget;

namespace vatro {

class Bindings;
class Button;
class CheckBox;
class ComboBox;
class ColumnHead;
class FittedText;
class Form;
class Frame;
class ItemList;
class Label;
class ListBox;
class OptionButton;
class Picture;
class PictureView;
class ProgressBar;
class ScrollBar;
class SpinArrows;
class TextBox;
class TextView;
class UpDown;

/// Binds all controls of the form to the widgets of its window `top`, and sets the tab order.
void BindForm(Form& form, QWidget& top, Bindings& bindings);

void Bind(TextBox& control, QLineEdit& widget, Bindings& bindings);
void Bind(TextView& control, QPlainTextEdit& widget, Bindings& bindings);
void Bind(ComboBox& control, QComboBox& widget, Bindings& bindings);
void Bind(ListBox& control, ItemList& widget, Bindings& bindings);
void Bind(Button& control, QPushButton& widget, Bindings& bindings);
void Bind(UpDown& control, SpinArrows& widget, Bindings& bindings);
void Bind(ProgressBar& control, QProgressBar& widget, Bindings& bindings);
void Bind(CheckBox& control, QCheckBox& widget, Bindings& bindings);
void Bind(Picture& control, PictureView& widget, Bindings& bindings);
void Bind(OptionButton& control, QRadioButton& widget, Bindings& bindings);
void Bind(ScrollBar& control, QScrollBar& widget, Bindings& bindings);
void Bind(Label& control, QLabel& widget, Bindings& bindings);
void Bind(Label& control, FittedText& widget, Bindings& bindings);
void Bind(Label& control, ColumnHead& widget, Bindings& bindings);
/// The caption is shown by the ColumnHead named after the frame, such as Frame1Caption.
void Bind(Frame& control, QFrame& widget, Bindings& bindings);

}  // namespace vatro
