// SPDX-License-Identifier: MIT
//
// Everything that the program keeps from one run to the next, apart from logs and tables: one row for each setting.
//
// A row has the section in the store, the key to read, the key to write, the default for a missing key, the type, and when the setting is
// written. The store ignores the case of keys, so a key that is read and written in two spellings is one key. Do not make the spellings
// equal: operators see them in the settings file, and the settings of earlier versions have them (docs/rules.md). Reading writes nothing.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vatro {

/// When a setting is written.
enum class Written {
    /// When the main form stores its state: at a regular end, and when the program is ended from outside.
    AtEnd,
    /// As AtEnd, and also as soon as the operator changes it.
    AtOnce,
    /// When the form that shows the setting is confirmed, together with all other settings of its section.
    WhenConfirmed,
    /// When the window is unloaded, unless it is minimised at that moment.
    WithWindow,
    /// At a start that finds no directory of the tables. The setting is never read.
    AtStart
};

/// A row of the table. Value is the type in memory: std::string_view for a text, std::int16_t, std::int32_t or bool.
template <class Value>
struct Setting {
    std::string_view section;
    std::string_view readKey;
    std::string_view writeKey;
    Value fallback;
    Written written;
};

using TextSetting = Setting<std::string_view>;
using ShortSetting = Setting<std::int16_t>;
using LongSetting = Setting<std::int32_t>;
using FlagSetting = Setting<bool>;

/// The position and size of a window, in twips.
struct PlaceSetting {
    LongSetting left;
    LongSetting top;
    LongSetting width;
    LongSetting height;
};

namespace setting {

inline constexpr std::string_view kSettings = "Settings";
inline constexpr std::string_view kCw = "CW";
inline constexpr std::string_view kEquipment = "Equipment";

// The contest and its operator.

/// Hours to add to the computer's time to get universal time, as a text.
inline constexpr TextSetting kUtc{kSettings, "UTC", "UTC", "-2", Written::AtOnce};
inline constexpr TextSetting kMyCall{kSettings, "MyCall", "MyCall", "", Written::AtOnce};
/// "A" or "B".
inline constexpr TextSetting kContestClass{kSettings, "gsKlasse", "gsKlasse", "A", Written::AtOnce};
inline constexpr TextSetting kTelephone{kSettings, "gsTelefon", "gsTelefon", "12345678", Written::AtEnd};
/// Padded with blanks to six characters when written.
inline constexpr TextSetting kLastOperator{kSettings, "LastOP", "LastOP", "", Written::AtEnd};
inline constexpr TextSetting kBand{kSettings, "Band", "Band", "80m", Written::AtEnd};
inline constexpr TextSetting kMode{kSettings, "Mode", "Mode", "SSB", Written::AtEnd};
inline constexpr TextSetting kQsoMode{kSettings, "QsoMode", "QsoMode", "SSB", Written::AtEnd};

// Directories.

inline constexpr TextSetting kTablesDirectory{kSettings, "gsFDLib", "gsFDlib", "", Written::AtEnd};
/// The directory of the tables, written under a second key that is never read.
inline constexpr TextSetting kFirstTablesDirectory{kSettings, "FDLib", "FDLib", "", Written::AtStart};
inline constexpr TextSetting kLogDirectory{kSettings, "gsLogLib", "gsLoglib", "", Written::AtEnd};
inline constexpr TextSetting kBackupDirectory{kSettings, "gsBackupLib", "gsBackupLib", "", Written::AtEnd};

// What the windows show.

/// 1 while the time field follows the clock, 0 otherwise.
inline constexpr ShortSetting kAutoTime{kSettings, "AutoTid", "AutoTid", 1, Written::AtEnd};
inline constexpr FlagSetting kShowCountry{kSettings, "VisLand", "VisLand", true, Written::AtEnd};
/// The start information. The year in the key means nothing.
inline constexpr FlagSetting kShowInfo{kSettings, "VisInfo2002", "VisInfo2002", true, Written::AtEnd};

/// A coordinate or a size of a window, in twips.
constexpr LongSetting Twips(std::string_view key, std::int32_t fallback) {
    return {kSettings, key, key, fallback, Written::WithWindow};
}

/// Position only: the main form's size is not stored.
inline constexpr LongSetting kMainLeft = Twips("MainLeft", 1000);
inline constexpr LongSetting kMainTop = Twips("MainTop", 1000);
inline constexpr PlaceSetting kQsoPlace{Twips("QSOLeft", 0), Twips("QSOTop", 0), Twips("QSOWidth", 1000), Twips("QSOHeight", 3000)};
inline constexpr PlaceSetting kCallPlace{Twips("CallLeft", 0), Twips("CallTop", 0), Twips("CallWidth", 1000), Twips("CallHeight", 3000)};
inline constexpr PlaceSetting kB4Place{Twips("B4Left", 2000), Twips("B4Top", 2000), Twips("B4Width", 6000), Twips("B4Height", 6000)};
inline constexpr PlaceSetting kEdrPlace{Twips("EDRLeft", 2000), Twips("EDRTop", 2000), Twips("EDRWidth", 6000), Twips("EDRHeight", 6000)};
inline constexpr PlaceSetting kSuffixWindowPlace{Twips("StregPLeft", 2000), Twips("StregPTop", 2000), Twips("StregPWidth", 6000),
                                                 Twips("StregPHeight", 6000)};

// The keyer.

inline constexpr ShortSetting kSpeed{kCw, "WPM", "WPM", 20, Written::WhenConfirmed};
inline constexpr ShortSetting kTone{kCw, "Tone", "Tone", 800, Written::WhenConfirmed};
inline constexpr LongSetting kVolume{kCw, "Volume", "Volume", 10000, Written::WhenConfirmed};
inline constexpr ShortSetting kFarnsworth{kCw, "Farnsworth", "Farnsworth", 0, Written::WhenConfirmed};
/// "001" sends serial numbers with their zeros, "--1" with a T for each leading zero.
inline constexpr TextSetting kNumberFormat{kCw, "N", "N", "001", Written::WhenConfirmed};
/// "599" sends the report 599 in digits, "5nn" in its short form. The key "T" is the report, not a text or a time.
inline constexpr TextSetting kReportFormat{kCw, "T", "T", "599", Written::WhenConfirmed};
/// The texts of the function keys. The window of the keyer's settings offers its own set of default texts, which has two more.
inline constexpr std::array<TextSetting, 8> kKeyerTexts{{
    {kCw, "Tekst1", "Tekst1", "CQ TEST DE #R #R TEST K", Written::WhenConfirmed},
    {kCw, "Tekst2", "Tekst2", "CL?", Written::WhenConfirmed},
    {kCw, "Tekst3", "Tekst3", "#R", Written::WhenConfirmed},
    {kCw, "Tekst4", "Tekst4", "#C UR #T #N BK", Written::WhenConfirmed},
    {kCw, "Tekst5", "Tekst5", "", Written::WhenConfirmed},
    {kCw, "Tekst6", "Tekst6", "", Written::WhenConfirmed},
    {kCw, "Tekst7", "Tekst7", "", Written::WhenConfirmed},
    {kCw, "Tekst8", "Tekst8", "", Written::WhenConfirmed},
}};

// The equipment; rows in the order of kEquipmentBands.

inline constexpr std::array<TextSetting, 5> kRigs{{
    {kEquipment, "Rig80", "Rig80", "", Written::WhenConfirmed},
    {kEquipment, "Rig40", "Rig40", "", Written::WhenConfirmed},
    {kEquipment, "Rig20", "Rig20", "", Written::WhenConfirmed},
    {kEquipment, "Rig15", "Rig15", "", Written::WhenConfirmed},
    {kEquipment, "Rig10", "Rig10", "", Written::WhenConfirmed},
}};
inline constexpr std::array<TextSetting, 5> kAntennas{{
    {kEquipment, "Ant80", "Ant80", "", Written::WhenConfirmed},
    {kEquipment, "Ant40", "Ant40", "", Written::WhenConfirmed},
    {kEquipment, "Ant20", "Ant20", "", Written::WhenConfirmed},
    {kEquipment, "Ant15", "Ant15", "", Written::WhenConfirmed},
    {kEquipment, "Ant10", "Ant10", "", Written::WhenConfirmed},
}};

}  // namespace setting

}  // namespace vatro
