// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "frame/settings.h"
#include "keyer/keyer_state.h"
#include "morse/text_codes.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr std::string_view kSection = "CW";
constexpr int kMaxFarnsworth = 20;
/// Of a first start. "Default tekster" in frmCW knows two more.
constexpr std::array<std::string_view, kCwTextCount> kInitialTexts{"CQ TEST DE #R #R TEST K", "CL?", "#R", "#C UR #T #N BK"};

std::string TextKey(std::size_t text) {
    return "Tekst" + PlainNumber(static_cast<long long>(text) + 1);
}

std::int16_t ReadShort(std::string_view key, int fallback) {
    return static_cast<std::int16_t>(HentTal(kSection, key, fallback));
}

}  // namespace

void HentCWIndstillinger() {
    KeyerState& cw = keyerState();
    cw.giCWWPM = ReadShort("WPM", 20);
    cw.giCWTone = ReadShort("Tone", 800);
    cw.glCWVolume = ToInt32(ToNumber(HentTekst(kSection, "Volume", "10000")));
    cw.giCWFarnsworth = static_cast<std::int16_t>(std::min(HentTal(kSection, "Farnsworth", 0), kMaxFarnsworth));
    cw.gsCWNummerFormat = HentTekst(kSection, "N", kNumberWithZeros);
    cw.gsCWRSTFormat = HentTekst(kSection, "T", kReportInFigures);
    for (std::size_t i = 0; i < kCwTextCount; ++i) cw.CWTekster[i] = HentTekst(kSection, TextKey(i), kInitialTexts[i]);
}

void GemCWIndstillinger() {
    const KeyerState& cw = keyerState();
    GemTal(kSection, "WPM", cw.giCWWPM);
    GemTal(kSection, "Tone", cw.giCWTone);
    GemTal(kSection, "Volume", cw.glCWVolume);
    GemTal(kSection, "Farnsworth", cw.giCWFarnsworth);
    GemTekst(kSection, "N", cw.gsCWNummerFormat);
    GemTekst(kSection, "T", cw.gsCWRSTFormat);
    for (std::size_t i = 0; i < kCwTextCount; ++i) GemTekst(kSection, TextKey(i), cw.CWTekster[i]);
}

}  // namespace vatro
