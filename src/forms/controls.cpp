// SPDX-License-Identifier: MIT
#include "controls.h"

#include <algorithm>

#include "form.h"
#include "front.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

Label::Label(Form& form, std::string_view name, std::string_view caption, Font font)
    : Control(form, name), caption_(caption), font_(std::move(font)) {}

Label::Label(Form& form, std::string_view name, int index, std::string_view caption, Control* accessTarget)
    : Control(form, name, index), caption_(caption), accessTarget_(accessTarget) {}

char Label::AccessLetter() const {
    return accessTarget_ != nullptr ? AccessKey(caption_) : '\0';
}

void Label::UseAccessLetter() {
    Parent().UserFocus(*accessTarget_);
}

void Label::SetCaption(std::string_view caption) {
    if (Put(caption_, caption, Aspect::Text) && Change) Change();
}

void Label::SetFontSize(double points) {
    Put(font_.size, points, Aspect::Look);
}

void Label::SetForeColour(Colour colour) {
    Put(foreColour_, colour, Aspect::Look);
}

void Label::SetBackColour(Colour colour) {
    Put(backColour_, colour, Aspect::Look);
}

void Label::SetOpaque(bool opaque) {
    Put(opaque_, opaque, Aspect::Look);
}

double Label::TextWidth() const {
    return InstalledFront().TextWidth(caption_, font_);
}

void Picture::UserClicked() {
    if (Enabled() && Click) Click();
}

void ScrollBar::SetValue(int value) {
    if (value < range_.min || value > range_.max) throw RunTimeError(Failure::InvalidCall);
    if (Put(value_, value, Aspect::Value) && Change) Change();
}

void ScrollBar::UserScrolled(int value) {
    SetValue(std::clamp(value, range_.min, range_.max));
}

void ScrollBar::UserMoved(Move move) {
    switch (move) {
        case Move::StepBack:
            return UserScrolled(value_ - range_.smallChange);
        case Move::StepOn:
            return UserScrolled(value_ + range_.smallChange);
        case Move::PageBack:
            return UserScrolled(value_ - range_.largeChange);
        case Move::PageOn:
            return UserScrolled(value_ + range_.largeChange);
        case Move::ToStart:
            return UserScrolled(range_.min);
        case Move::ToEnd:
            return UserScrolled(range_.max);
    }
}

void UpDown::Spin(bool up) {
    if (!Enabled()) return;
    const double value = NumericValue(buddy_.Text()) + (up ? range_.step : -range_.step);
    buddy_.SetText(PlainNumber(static_cast<long long>(std::max<double>(range_.min, std::min<double>(value, range_.max)))));
}

Timer::~Timer() {
    SetRunning(false);
}

void Timer::SetInterval(int milliseconds) {
    interval_ = milliseconds;
    platform().clock.Schedule(*this);
}

void Timer::SetRunning(bool running) {
    if (running_ == running) return;
    running_ = running;
    platform().clock.Schedule(*this);
}

void Timer::Tick() {
    if (Running() && OnTimer) OnTimer();
}

void ProgressBar::SetMax(int max) {
    max = std::max(max, 0);
    if (max_ == max) return;
    max_ = max;
    value_ = std::min(value_, max_);
    Tell(Aspect::Value);
}

}  // namespace vatro
