// SPDX-License-Identifier: MIT
#include "entry/fitted_label.h"

#include <cmath>

namespace vatro {

namespace {

constexpr double kTwipsPrPunkt = 20;
/// Twips of window for each point of text: a point has 20, and the text gets a margin of 2.5 per cent.
constexpr double kTwipsPrTekstpunkt = 20.5;

}  // namespace

void TilpasTekst(Form& form, Label& label) {
    label.SetFontSize(form.ScaleHeight() / kTwipsPrPunkt);
    TilpasBredde(form, label);
}

void TilpasBredde(Form& form, const Label& label) {
    form.SetWidth(static_cast<int>(std::lround(label.TextWidth() * kTwipsPrTekstpunkt)));
}

void VisNormal(Label& label, std::string_view tekst) {
    label.SetOpaque(false);
    label.SetForeColour(kBlack);
    label.SetCaption(tekst);
}

}  // namespace vatro
