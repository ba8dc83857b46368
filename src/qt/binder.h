// SPDX-License-Identifier: MIT
//
// Ties each control of a form to the widget of its name: Text1(1) to Text1_1.
//
// There is one function Bind for each pair of control and widget. It shows what the control holds, then connects: only
// what the user does travels from the widget to the control, and the control's mirror brings back what has changed. A
// control without exactly one widget, or a named widget of a class that could be bound and is nobody's, is a problem that
// the window tells.
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

namespace vatro {

class Button;
class CheckBox;
class ComboBox;
class ColumnHead;
class FittedText;
class Form;
class FormWindow;
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

/// Ties all controls of the form, and sets the order of Tab.
void BindForm(Form& form, FormWindow& window);

void Bind(TextBox& control, QLineEdit& widget, FormWindow& window);
void Bind(TextView& control, QPlainTextEdit& widget, FormWindow& window);
void Bind(ComboBox& control, QComboBox& widget, FormWindow& window);
void Bind(ListBox& control, ItemList& widget, FormWindow& window);
void Bind(Button& control, QPushButton& widget, FormWindow& window);
void Bind(UpDown& control, SpinArrows& widget, FormWindow& window);
void Bind(ProgressBar& control, QProgressBar& widget, FormWindow& window);
void Bind(CheckBox& control, QCheckBox& widget, FormWindow& window);
void Bind(Picture& control, PictureView& widget, FormWindow& window);
void Bind(OptionButton& control, QRadioButton& widget, FormWindow& window);
void Bind(ScrollBar& control, QScrollBar& widget, FormWindow& window);
void Bind(Label& control, QLabel& widget, FormWindow& window);
void Bind(Label& control, FittedText& widget, FormWindow& window);
void Bind(Label& control, ColumnHead& widget, FormWindow& window);
/// The caption goes to the head named after the frame, Frame1Caption.
void Bind(Frame& control, QFrame& widget, FormWindow& window);

}  // namespace vatro
