// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include <algorithm>

#include "frame/settings.h"
#include "frame/state.h"
#include "morse/text_codes.h"

namespace vatro {

namespace {

constexpr std::int16_t kMaxFarnsworth = 20;

static_assert(setting::kKeyerTexts.size() == kCwTextCount);
static_assert(setting::kNumberFormat.fallback == kNumberWithZeros);
static_assert(setting::kReportFormat.fallback == kReportInFigures);

}  // namespace

void HentCWIndstillinger() {
    KeyerState& cw = desk().cw;
    cw.giCWWPM = ReadSetting(setting::kSpeed);
    cw.giCWTone = ReadSetting(setting::kTone);
    cw.glCWVolume = ReadSetting(setting::kVolume);
    cw.giCWFarnsworth = std::min(ReadSetting(setting::kFarnsworth), kMaxFarnsworth);
    cw.gsCWNummerFormat = ReadSetting(setting::kNumberFormat);
    cw.gsCWRSTFormat = ReadSetting(setting::kReportFormat);
    for (std::size_t i = 0; i < kCwTextCount; ++i) cw.CWTekster[i] = ReadSetting(setting::kKeyerTexts[i]);
}

void GemCWIndstillinger() {
    const KeyerState& cw = desk().cw;
    StoreSetting(setting::kSpeed, cw.giCWWPM);
    StoreSetting(setting::kTone, cw.giCWTone);
    StoreSetting(setting::kVolume, cw.glCWVolume);
    StoreSetting(setting::kFarnsworth, cw.giCWFarnsworth);
    StoreSetting(setting::kNumberFormat, cw.gsCWNummerFormat);
    StoreSetting(setting::kReportFormat, cw.gsCWRSTFormat);
    for (std::size_t i = 0; i < kCwTextCount; ++i) StoreSetting(setting::kKeyerTexts[i], cw.CWTekster[i]);
}

}  // namespace vatro
