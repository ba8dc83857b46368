// SPDX-License-Identifier: MIT
//
// All controls that a form can own. The small ones are declared here; text fields, lists, bars and buttons have their own
// headers.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

#include "bars.h"
#include "buttons.h"
#include "control.h"
#include "font.h"
#include "lists.h"
#include "text_controls.h"
#include "ticker.h"

namespace vatro {

/// A line of text that the user does not edit.
class Label : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    /// A label that names no field.
    explicit Label(Form& form, std::string_view name, std::string_view caption = {}, Font font = {});
    /// A label may name a field; the access key in its caption then moves the focus to that field.
    Label(Form& form, std::string_view name, int index, std::string_view caption, Control* accessTarget = nullptr);

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const Font& LabelFont() const { return font_; }
    void SetFontSize(double points);
    Colour ForeColour() const { return foreColour_; }
    void SetForeColour(Colour colour);
    Colour BackColour() const { return backColour_; }
    void SetBackColour(Colour colour);
    bool Opaque() const { return opaque_; }
    void SetOpaque(bool opaque);
    /// Runs when the caption changes.
    std::function<void()> Change;
    /// Width of the caption in the label's font, in points.
    double TextWidth() const;
    /// The field that the label names, or null.
    const Control* AccessTarget() const { return accessTarget_; }
    char AccessLetter() const override;
    void UseAccessLetter() override;

private:
    std::string caption_;
    Font font_;
    Control* accessTarget_ = nullptr;
    Colour foreColour_ = kBlack;
    Colour backColour_ = 0xFFFFFF;
    bool opaque_ = false;
};

/// A picture of the handbook, stretched to the size of the control. It takes no keys.
class Picture : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    Picture(Form& form, std::string_view name, std::string_view file) : Control(form, name), file_(file) {}
    /// Name of the picture file.
    const std::string& File() const { return file_; }

    // Called by the front.

    /// Runs Click if the picture is enabled.
    void UserClicked() override;

private:
    std::string file_;
};

/// A bar whose slider stands for a number.
class ScrollBar : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    struct Range {
        int min = 0;
        int max = 0;
        int smallChange = 1;
        int largeChange = 1;
    };
    ScrollBar(Form& form, std::string_view name, Range range) : Control(form, name), range_(range), value_(range.min) {}
    bool TakesFocus() const override { return true; }
    const Range& Limits() const { return range_; }
    int Value() const { return value_; }
    /// Fails with 5 outside the range. Runs Change if the value changes.
    void SetValue(int value);
    std::function<void()> Change;

    // Called by the front.

    /// Sets the value, limited to the range.
    void UserScrolled(int value);
    /// How a key moves the slider: by a small or large step, or to either end.
    enum class Move { StepBack, StepOn, PageBack, PageOn, ToStart, ToEnd };
    /// Moves the slider by a key, within the range.
    void UserMoved(Move move);

private:
    Range range_;
    int value_;
};

/// A pair of arrow buttons that step the number in a text field up and down.
class UpDown : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    struct Range {
        int min = 0;
        int max = 0;
        int step = 1;
    };
    /// `buddy` is the text field with the number; it must be declared before the arrows.
    UpDown(Form& form, std::string_view name, TextBox& buddy, Range range) : Control(form, name), buddy_(buddy), range_(range) {
        buddy.counted_ = true;
    }
    const Range& Limits() const { return range_; }
    const TextBox& Buddy() const { return buddy_; }
    void SetMin(int min) { range_.min = min; }

    // Called by the front.

    /// Steps the number in the field up or down by the step of the range, within its limits. Does nothing if disabled.
    void Spin(bool up);

private:
    TextBox& buddy_;
    Range range_;
};

/// Ticks through the clock service: every Interval milliseconds while the timer is switched on and its interval is above 0. It does not
/// matter whether the control is enabled.
class Timer : public Control, public Ticker {
public:
    /// An interval of a minute, in milliseconds.
    static constexpr int kMinute = 60000;

    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    Timer(Form& form, std::string_view name, int interval) : Control(form, name), interval_(interval) {}
    ~Timer() override;
    int Interval() const override { return interval_; }
    /// The next tick is due one interval from now.
    void SetInterval(int milliseconds);
    bool Running() const override { return running_ && interval_ > 0; }
    /// Switches the timer on or off. Switched on, it ticks for the first time one interval from now. Does nothing if it is in that state
    /// already.
    void SetRunning(bool running);

    /// Runs at each tick.
    std::function<void()> OnTimer;

    // Called by the clock.
    void Tick() override;

private:
    void FormUnloaded() override { SetRunning(false); }

    int interval_;
    bool running_ = false;
};

/// A bar that fills from 0 to Max.
class ProgressBar : public Control {
public:
    using Control::Control;
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    int Max() const { return max_; }
    /// A negative maximum counts as 0. A value above the new maximum is reduced to it.
    void SetMax(int max);
    int Value() const { return value_; }
    /// The value is limited to 0 to Max.
    void SetValue(int value) { Put(value_, std::clamp(value, 0, max_), Aspect::Value); }

private:
    int max_ = 100;
    int value_ = 0;
};

}  // namespace vatro
