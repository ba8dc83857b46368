// SPDX-License-Identifier: MIT
#include "frame/settings.h"

#include "codepage.h"
#include "forms.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

std::string Nøgle(const Vinduesplads& plads, std::string_view mål) {
    return std::string(plads.navn).append(mål);
}

}  // namespace

std::string HentTekst(std::string_view sektion, std::string_view nøgle, std::string_view standard) {
    return platform().settings.Read(sektion, nøgle).value_or(std::string(standard));
}

int HentTal(std::string_view sektion, std::string_view nøgle, int standard) {
    const auto tekst = platform().settings.Read(sektion, nøgle);
    return tekst ? ToInt16(ToNumber(*tekst)) : standard;
}

int HentTwips(std::string_view nøgle, int standard) {
    const auto tekst = platform().settings.Read(kSettings, nøgle);
    return tekst ? ToInt32(ToNumber(*tekst)) : standard;
}

bool HentFlag(std::string_view sektion, std::string_view nøgle, bool standard) {
    const auto tekst = platform().settings.Read(sektion, nøgle);
    if (!tekst) return standard;
    if (EqualNoCase(*tekst, "True")) return true;
    if (EqualNoCase(*tekst, "False")) return false;
    return ToNumber(*tekst) != 0;
}

void GemTekst(std::string_view sektion, std::string_view nøgle, std::string_view tekst) {
    platform().settings.Write(sektion, nøgle, tekst);
}

void GemTal(std::string_view sektion, std::string_view nøgle, int tal) {
    GemTekst(sektion, nøgle, PlainNumber(tal));
}

void GemFlag(std::string_view sektion, std::string_view nøgle, bool flag) {
    GemTekst(sektion, nøgle, flag ? "True" : "False");
}

void HentPlads(Form& form, const Vinduesplads& plads) {
    const int left = HentTwips(Nøgle(plads, "Left"), plads.left);
    const int top = HentTwips(Nøgle(plads, "Top"), plads.top);
    const int width = HentTwips(Nøgle(plads, "Width"), plads.width);
    const int height = HentTwips(Nøgle(plads, "Height"), plads.height);
    form.Place(left, top, width, height);
}

void GemPlads(const Form& form, const Vinduesplads& plads) {
    if (form.State() == WindowState::Minimised) return;
    GemTal(kSettings, Nøgle(plads, "Left"), form.Left());
    GemTal(kSettings, Nøgle(plads, "Top"), form.Top());
    GemTal(kSettings, Nøgle(plads, "Width"), form.Width());
    GemTal(kSettings, Nøgle(plads, "Height"), form.Height());
}

}  // namespace vatro
