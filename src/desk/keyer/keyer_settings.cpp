// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include <algorithm>

#include "frame/settings.h"

namespace vatro {

std::int16_t giCWWPM = 0;
std::int16_t giCWTone = 0;
std::int32_t glCWVolume = 0;
std::int16_t giCWFarnsworth = 0;
std::string gsCWNummerFormat;
std::string gsCWRSTFormat;
std::array<std::string, kAntalCWTekster> CWTekster;

namespace {

constexpr std::int16_t kMestFarnsworth = 20;

static_assert(setting::kKeyerTexts.size() == kAntalCWTekster);
static_assert(setting::kNumberFormat.fallback == kNummerMedNuller);
static_assert(setting::kReportFormat.fallback == kRSTMedTal);

}  // namespace

void HentCWIndstillinger() {
    giCWWPM = ReadSetting(setting::kSpeed);
    giCWTone = ReadSetting(setting::kTone);
    glCWVolume = ReadSetting(setting::kVolume);
    giCWFarnsworth = std::min(ReadSetting(setting::kFarnsworth), kMestFarnsworth);
    gsCWNummerFormat = ReadSetting(setting::kNumberFormat);
    gsCWRSTFormat = ReadSetting(setting::kReportFormat);
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) CWTekster[i] = ReadSetting(setting::kKeyerTexts[i]);
}

void GemCWIndstillinger() {
    StoreSetting(setting::kSpeed, giCWWPM);
    StoreSetting(setting::kTone, giCWTone);
    StoreSetting(setting::kVolume, glCWVolume);
    StoreSetting(setting::kFarnsworth, giCWFarnsworth);
    StoreSetting(setting::kNumberFormat, gsCWNummerFormat);
    StoreSetting(setting::kReportFormat, gsCWRSTFormat);
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) StoreSetting(setting::kKeyerTexts[i], CWTekster[i]);
}

}  // namespace vatro
