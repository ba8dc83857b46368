// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "frame/settings.h"
#include "frame/state.h"
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
    return static_cast<std::int16_t>(ReadNumber(kSection, key, fallback));
}

}  // namespace

void HentCWIndstillinger() {
    KeyerState& cw = desk().cw;
    cw.giCWWPM = ReadShort("WPM", 20);
    cw.giCWTone = ReadShort("Tone", 800);
    cw.glCWVolume = ToInt32(ToNumber(ReadText(kSection, "Volume", "10000")));
    cw.giCWFarnsworth = static_cast<std::int16_t>(std::min(ReadNumber(kSection, "Farnsworth", 0), kMaxFarnsworth));
    cw.gsCWNummerFormat = ReadText(kSection, "N", kNumberWithZeros);
    cw.gsCWRSTFormat = ReadText(kSection, "T", kReportInFigures);
    for (std::size_t i = 0; i < kCwTextCount; ++i) cw.CWTekster[i] = ReadText(kSection, TextKey(i), kInitialTexts[i]);
}

void GemCWIndstillinger() {
    const KeyerState& cw = desk().cw;
    StoreNumber(kSection, "WPM", cw.giCWWPM);
    StoreNumber(kSection, "Tone", cw.giCWTone);
    StoreNumber(kSection, "Volume", cw.glCWVolume);
    StoreNumber(kSection, "Farnsworth", cw.giCWFarnsworth);
    StoreText(kSection, "N", cw.gsCWNummerFormat);
    StoreText(kSection, "T", cw.gsCWRSTFormat);
    for (std::size_t i = 0; i < kCwTextCount; ++i) StoreText(kSection, TextKey(i), cw.CWTekster[i]);
}

}  // namespace vatro
