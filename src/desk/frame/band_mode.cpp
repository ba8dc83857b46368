// SPDX-License-Identifier: MIT
#include "frame/band_mode.h"

#include <array>

#include "entry/frmMain.h"
#include "frame/state.h"

namespace vatro {

namespace {

struct Choice {
    int index;
    std::string_view name;
    /// The word that selects it in the call field; empty for the hidden band.
    std::string_view word;
};

constexpr std::array kBands{Choice{1, "10m", "10M"}, Choice{2, "15m", "15M"}, Choice{3, "20m", "20M"},
                            Choice{4, "40m", "40M"}, Choice{5, "80m", "80M"}, Choice{kHiddenBand, "XXm", ""}};
constexpr std::array kModes{Choice{8, "SSB", "SSB"}, Choice{9, "CW", "CW"}, Choice{10, "PSK31", "PSK31"}, Choice{11, "RTTY", "RTTY"},
                            Choice{12, "HELL", "HELL"}};

template <class Choices>
std::optional<int> Find(const Choices& list, std::string_view Choice::*field, std::string_view text) {
    if (text.empty()) return std::nullopt;
    for (const Choice& choice : list)
        if (choice.*field == text) return choice.index;
    return std::nullopt;
}

}  // namespace

std::optional<int> BandIndex(std::string_view band) {
    return Find(kBands, &Choice::name, band);
}

std::optional<int> ModeIndex(std::string_view qsoMode) {
    return Find(kModes, &Choice::name, qsoMode);
}

std::optional<int> ChoiceOfWord(std::string_view word) {
    if (const auto band = Find(kBands, &Choice::word, word)) return band;
    return Find(kModes, &Choice::word, word);
}

void SetIndstillinger(int index) {
    FrmMain& main = *frmMain;
    const bool mode = index > kHiddenBand;
    for (MenuItem* entry : main.BandEntries())
        if ((entry->Index() >= kFirstMode) == mode) entry->SetTicked(entry->Index() == index);

    DeskState& state = desk();
    for (const Choice& choice : kBands)
        if (choice.index == index) state.gsBand = choice.name;
    for (const Choice& choice : kModes) {
        if (choice.index != index) continue;
        state.gsQsoMode = choice.name;
        state.gsMode = state.gsQsoMode == "SSB" ? "SSB" : "CW";
        main.mnuCW.SetEnabled(state.gsQsoMode == "CW");
    }
}

void SetToolbar() {
    // The button of the hidden band is not shown. For this band the buttons are left as they are.
    const auto band = BandIndex(desk().gsBand);
    if (band && *band != kHiddenBand) frmMain->toolbar.Press(*band);
    if (const auto mode = ModeIndex(desk().gsQsoMode)) frmMain->toolbar.Press(*mode);
}

}  // namespace vatro
