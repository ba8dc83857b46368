// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include <algorithm>
#include <string_view>

#include "frame/settings.h"
#include "numbers.h"

namespace vatro {

std::int16_t giCWWPM = 0;
std::int16_t giCWTone = 0;
std::int32_t glCWVolume = 0;
std::int16_t giCWFarnsworth = 0;
std::string gsCWNummerFormat;
std::string gsCWRSTFormat;
std::array<std::string, kAntalCWTekster> CWTekster;

namespace {

constexpr std::string_view kSektion = "CW";
constexpr int kMestFarnsworth = 20;
/// Of a first start. "Default tekster" in frmCW knows two more.
constexpr std::array<std::string_view, kAntalCWTekster> kFørsteTekster{"CQ TEST DE #R #R TEST K", "CL?", "#R", "#C UR #T #N BK"};

std::string Nøgle(std::size_t tekst) {
    return "Tekst" + PlainNumber(static_cast<long long>(tekst) + 1);
}

std::int16_t HentKort(std::string_view nøgle, int standard) {
    return static_cast<std::int16_t>(ReadNumber(kSektion, nøgle, standard));
}

}  // namespace

void HentCWIndstillinger() {
    giCWWPM = HentKort("WPM", 20);
    giCWTone = HentKort("Tone", 800);
    glCWVolume = ToInt32(ToNumber(ReadText(kSektion, "Volume", "10000")));
    giCWFarnsworth = static_cast<std::int16_t>(std::min(ReadNumber(kSektion, "Farnsworth", 0), kMestFarnsworth));
    gsCWNummerFormat = ReadText(kSektion, "N", kNummerMedNuller);
    gsCWRSTFormat = ReadText(kSektion, "T", kRSTMedTal);
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) CWTekster[i] = ReadText(kSektion, Nøgle(i), kFørsteTekster[i]);
}

void GemCWIndstillinger() {
    StoreNumber(kSektion, "WPM", giCWWPM);
    StoreNumber(kSektion, "Tone", giCWTone);
    StoreNumber(kSektion, "Volume", glCWVolume);
    StoreNumber(kSektion, "Farnsworth", giCWFarnsworth);
    StoreText(kSektion, "N", gsCWNummerFormat);
    StoreText(kSektion, "T", gsCWRSTFormat);
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) StoreText(kSektion, Nøgle(i), CWTekster[i]);
}

}  // namespace vatro
