// SPDX-License-Identifier: MIT
#include "country/tables.h"

#include <algorithm>

#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// The number of the next row of a table of which `count` rows are in use.
std::int16_t NextRow(std::int16_t count) {
    return static_cast<std::int16_t>(count + 1);
}

void RefuseBeyond(std::int16_t row, int rows) {
    if (row > rows) throw RunTimeError(Failure::IndexOutOfRange);
}

constexpr std::uint32_t kHashStart = 2166136261U;

constexpr std::uint32_t Hash(std::uint32_t hash, char c) {
    return (hash ^ static_cast<unsigned char>(c)) * 16777619U;
}

}  // namespace

int CountryTables::CountriesInUse() const {
    return std::min<int>(rows_.giLande, kCountryRows);
}

int CountryTables::FirstRow(std::string_view prefix, std::uint32_t hash, int start) const {
    for (int i = buckets_[BucketOf(hash)]; i != 0; i = nextInBucket_[static_cast<std::size_t>(i)])
        if (i >= start && rows_.RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed() == prefix) return i;
    return 0;
}

std::optional<int> CountryTables::FoundRow(int row) const {
    if (row != 0) return row;
    if (rows_.giRefPfx >= kPrefixRows) throw RunTimeError(Failure::IndexOutOfRange);
    return std::nullopt;
}

std::optional<int> CountryTables::FindWholeCall(std::string_view call, int start) const {
    if (call.size() > kPrefixLength) return FoundRow(0);
    std::uint32_t hash = kHashStart;
    for (const char c : call) hash = Hash(hash, c);
    return FoundRow(FirstRow(call, hash, start));
}

std::optional<int> CountryTables::FindPrefix(std::string_view text, int start) const {
    int found = 0;
    std::uint32_t hash = kHashStart;
    for (std::size_t length = 0; length <= std::min(text.size(), kPrefixLength); ++length) {
        if (length > 0) hash = Hash(hash, text[length - 1]);
        if (buckets_[BucketOf(hash)] == 0) continue;
        const int row = FirstRow(text.substr(0, length), hash, start);
        if (row != 0 && (found == 0 || row < found)) found = row;
    }
    return FoundRow(found);
}

CountryTables::SortKey CountryTables::KeyOf(const FixedText<kPrefixLength>& prefix) {
    const std::string_view text = prefix.Padded();
    SortKey key;
    static_assert(kPrefixLength == sizeof(key.front) + sizeof(key.back));
    for (const char c : text.substr(0, sizeof(key.front))) key.front = (key.front << 8U) | static_cast<unsigned char>(c);
    for (const char c : text.substr(sizeof(key.front)))
        key.back = static_cast<std::uint16_t>((key.back << 8U) | static_cast<unsigned char>(c));
    return key;
}

void CountryTables::IndexCountry(std::size_t row) {
    greatest_[row] = std::max(greatest_[row - 1], KeyOf(rows_.Lande[row].Pfx));
}

int CountryTables::CountryOf(int prefixRow) const {
    const SortKey wanted = KeyOf(rows_.RefPfx[static_cast<std::size_t>(prefixRow)].Land);
    const auto first = greatest_.begin() + 1;
    // The last row is the result if no row before it is.
    const auto last = greatest_.begin() + std::max(CountriesInUse(), 1);
    return static_cast<int>(std::lower_bound(first, last, wanted) - greatest_.begin());
}

void CountryTables::Take(const CountryRows& rows) {
    rows_ = rows;
    for (int row = 1; row <= CountriesInUse(); ++row) IndexCountry(static_cast<std::size_t>(row));
    IndexPrefixes();
}

void CountryTables::IndexPrefixes() {
    buckets_.fill(0);
    // From the last row to the first, so that the rows of each chain ascend.
    for (int i = std::min<int>(rows_.giRefPfx, kPrefixRows); i > 0; --i) {
        const auto row = static_cast<std::size_t>(i);
        std::uint32_t hash = kHashStart;
        for (const char c : rows_.RefPfx[row].Pfx.Trimmed()) hash = Hash(hash, c);
        std::int16_t& first = buckets_[BucketOf(hash)];
        nextInBucket_[row] = first;
        first = static_cast<std::int16_t>(i);
    }
}

void CountryTables::ReadCountry(std::string_view line) {
    rows_.giLande = NextRow(rows_.giLande);
    RefuseBeyond(rows_.giLande, kCountryRows);
    LandRec& country = rows_.Lande[static_cast<std::size_t>(rows_.giLande)];
    country.Pfx = Trim(Columns(line, 1, kPrefixLength));
    IndexCountry(static_cast<std::size_t>(rows_.giLande));
    country.Navn = Trim(Columns(line, 11, 25));
    country.Kontinent = Trim(Columns(line, 36, 2));
    country.TidsZone = ToFloat32(ToNumber(Trim(Columns(line, 39, 5))));
}

void CountryTables::BeginPrefixes() {
    rows_.giRefPfx = 0;
    lastFirst_.reset();
}

void CountryTables::ReadPrefix(std::string_view line) {
    rows_.giRefPfx = NextRow(rows_.giRefPfx);
    RefuseBeyond(rows_.giRefPfx, kPrefixRows);
    const auto row = static_cast<std::size_t>(rows_.giRefPfx);
    PfxRec& prefix = rows_.RefPfx[row];
    prefix.Pfx = Trim(Columns(line, 1, kPrefixLength));
    prefix.Land = Trim(Columns(line, 11, kPrefixLength));
    prefix.CQzone = Columns(line, 21, 2);
    prefix.ITUzone = Columns(line, 24, 2);
    const char first = prefix.Pfx.Padded().front();
    if (first == lastFirst_) return;
    lastFirst_ = first;
    rows_.gaPfxStart[static_cast<unsigned char>(first)] = static_cast<std::int16_t>(row);
}

}  // namespace vatro
