// SPDX-License-Identifier: MIT
//
// The settings store as the program uses it: texts that are turned into numbers and flags on reading, and the places of
// the windows. A missing key yields the default and nothing is written. A stored text that cannot be turned fails with
// 13 (type mismatch), which stops the start.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

class Form;

inline constexpr std::string_view kSettings = "Settings";

/// The text as it is stored.
std::string HentTekst(std::string_view sektion, std::string_view nøgle, std::string_view standard = {});
/// A whole number, -32768 to 32767; fails with 6 beyond.
int HentTal(std::string_view sektion, std::string_view nøgle, int standard);
/// A place or length in twips: beside a wide screen, or on a second one, it can be more than HentTal takes.
int HentTwips(std::string_view nøgle, int standard);
/// "True" or "False" without regard to case, or a number, of which 0 is false.
bool HentFlag(std::string_view sektion, std::string_view nøgle, bool standard);

/// What is stored is on the disk on return.
void GemTekst(std::string_view sektion, std::string_view nøgle, std::string_view tekst);
void GemTal(std::string_view sektion, std::string_view nøgle, int tal);
void GemFlag(std::string_view sektion, std::string_view nøgle, bool flag);

/// The keys and defaults, in twips, of a window's place: "QSO" gives QSOLeft, QSOTop, QSOWidth, QSOHeight.
struct Vinduesplads {
    std::string_view navn;
    int left;
    int top;
    int width;
    int height;
};

/// Moves and sizes the form to its stored place; one on a screen that is no longer there is taken as it is.
void HentPlads(Form& form, const Vinduesplads& plads);
/// Stores the form's place unless it is minimised.
void GemPlads(const Form& form, const Vinduesplads& plads);

}  // namespace vatro
