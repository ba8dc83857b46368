// SPDX-License-Identifier: MIT
#include "entry/fitted_label.h"

#include <cmath>

namespace vatro {

namespace {

/// Twips of window per point of text: a point has 20, plus a margin of 2.5 per cent.
constexpr double kTwipsPerTextPoint = 20.5;

}  // namespace

void FitText(Form& form, Label& label) {
    label.SetFontSize(form.ScaleHeight() / kTwipsPerPoint);
    FitWidth(form, label);
}

void FitWidth(Form& form, const Label& label) {
    form.SetWidth(static_cast<int>(std::lround(label.TextWidth() * kTwipsPerTextPoint)));
}

void ShowNormal(Label& label, std::string_view text) {
    label.SetOpaque(false);
    label.SetForeColour(kBlack);
    label.SetCaption(text);
}

}  // namespace vatro
