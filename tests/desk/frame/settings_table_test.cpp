// SPDX-License-Identifier: MIT
#include "frame/settings_table.h"

#include <algorithm>
#include <set>

#include "running_program.h"

namespace vatro {
namespace {

/// The columns that every row of the table has, whatever its type.
struct Row {
    std::string_view section;
    std::string_view readKey;
    std::string_view writeKey;
    Written written;
};

template <class Value>
Row RowOf(const Setting<Value>& setting) {
    return {setting.section, setting.readKey, setting.writeKey, setting.written};
}

std::vector<Row> Rows() {
    using namespace setting;
    std::vector<Row> rows{RowOf(kUtc),
                          RowOf(kMyCall),
                          RowOf(kContestClass),
                          RowOf(kTelephone),
                          RowOf(kLastOperator),
                          RowOf(kBand),
                          RowOf(kMode),
                          RowOf(kQsoMode),
                          RowOf(kTablesDirectory),
                          RowOf(kFirstTablesDirectory),
                          RowOf(kAutoTime),
                          RowOf(kShowCountry),
                          RowOf(kShowInfo),
                          RowOf(kLogDirectory),
                          RowOf(kBackupDirectory),
                          RowOf(kMainLeft),
                          RowOf(kMainTop),
                          RowOf(kSpeed),
                          RowOf(kTone),
                          RowOf(kVolume),
                          RowOf(kFarnsworth),
                          RowOf(kNumberFormat),
                          RowOf(kReportFormat)};
    for (const PlaceSetting& place : {kQsoPlace, kCallPlace, kB4Place, kEdrPlace, kSuffixWindowPlace})
        for (const LongSetting& twips : {place.left, place.top, place.width, place.height}) rows.push_back(RowOf(twips));
    for (const TextSetting& text : kKeyerTexts) rows.push_back(RowOf(text));
    for (const TextSetting& rig : kRigs) rows.push_back(RowOf(rig));
    for (const TextSetting& antenna : kAntennas) rows.push_back(RowOf(antenna));
    return rows;
}

TEST(SettingsTable, ReadsTheKeyThatItWrites) {
    for (const Row& row : Rows()) EXPECT_TRUE(EqualNoCase(row.readKey, row.writeKey)) << row.readKey;
}

TEST(SettingsTable, HasNoKeyTwice) {
    std::set<std::string> keys;
    for (const Row& row : Rows())
        EXPECT_TRUE(keys.insert(UpperText(std::string(row.section) + "/" + std::string(row.writeKey))).second) << row.writeKey;
}

class StoredByTheTable : public RunningProgram {
protected:
    std::size_t TimesWritten(const Row& row) const { return static_cast<std::size_t>(std::ranges::count(settings.written, row.writeKey)); }
};

TEST_F(StoredByTheTable, TheEndWritesTheRowsThatSaySoAndNoOtherGeneralOnes) {
    Start();
    settings.written.clear();
    Dispatch([] { frmMain->Unload(); });
    for (const Row& row : Rows()) {
        if (row.written == Written::WithWindow) continue;
        const bool atEnd = row.written == Written::AtEnd || row.written == Written::AtOnce;
        EXPECT_EQ(TimesWritten(row), atEnd ? 1U : 0U) << row.writeKey;
    }
}

TEST_F(StoredByTheTable, AStartWithoutTheTablesDirectoryWritesItsRow) {
    settings.texts.erase("SETTINGS/GSFDLIB");
    Start();
    for (const Row& row : Rows()) EXPECT_EQ(TimesWritten(row), row.written == Written::AtStart ? 1U : 0U) << row.writeKey;
}

}  // namespace
}  // namespace vatro
