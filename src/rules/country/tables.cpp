// SPDX-License-Identifier: MIT
#include "country/tables.h"

#include <algorithm>
#include <string>

#include "codepage.h"
#include "frame/frmSplash.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

std::array<LandRec, kCountryRows + 1> Lande;
std::array<PfxRec, kPrefixRows + 1> RefPfx;
std::int16_t giLande = 0;
std::int16_t giRefPfx = 0;
std::array<std::int16_t, 257> gaPfxStart{};

namespace {

/// Reads every line of a data file. A failure of the file or of a line is told by the file's name.
template <class TakeLine>
void LoadTable(std::string_view file, std::string_view name, std::string_view stage, std::int16_t& count, TakeLine line) {
    Files& files = platform().files;
    try {
        files.Open(1, PathIn(gsFDLib, file), FileMode::Input);
        frmSplash->ShowStage(stage);
        count = 0;
        while (!files.EndOfFile(1)) line(files.LineInput(1));
        files.Close(1);
    } catch (const RunTimeError&) {
        files.Close(1);
        MessageBox message;
        message.text = PathIn(gsFDLib, name) + " kunne ikke findes. Importer cty.dat";
        message.icon = Icon::Information;
        MsgBox(message);
    }
}

/// The next row of a table; a count above `rows` is a failure, and stays.
std::size_t NextRow(std::int16_t& count, int rows) {
    ++count;
    if (count > rows) throw RunTimeError(Failure::IndexOutOfRange);
    return static_cast<std::size_t>(count);
}

// A search of RefPfx looks from a start row to the end of the table for the first row that is met. What the rows hold is
// found by a table of hashes, so that a search without a hit costs no more than one with a hit; `nextInBucket` joins the rows of
// one prefix in ascending order.
constexpr std::size_t kBuckets = 16384;
std::array<std::int16_t, kBuckets> buckets{};
std::array<std::int16_t, kPrefixRows + 1> nextInBucket{};

constexpr std::uint32_t kHashStart = 2166136261U;

constexpr std::uint32_t Hash(std::uint32_t hash, char c) {
    return (hash ^ static_cast<unsigned char>(c)) * 16777619U;
}

std::size_t BucketOf(std::uint32_t hash) {
    return (hash ^ (hash >> 15U)) % kBuckets;
}

/// The first row from `start` on that holds `prefix`, whose hash is given; 0 if none does.
int FirstRow(std::string_view prefix, std::uint32_t hash, int start) {
    for (int i = buckets[BucketOf(hash)]; i != 0; i = nextInBucket[static_cast<std::size_t>(i)])
        if (i >= start && RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed() == prefix) return i;
    return 0;
}

int NotFound() {
    if (giRefPfx >= kPrefixRows) throw RunTimeError(Failure::IndexOutOfRange);
    return 0;
}

}  // namespace

int CountriesInUse() {
    return std::min<int>(giLande, kCountryRows);
}

void IndlæsLande() {
    LoadTable("lande.txt", "Lande.txt", "Indlæser lande.txt"_t, giLande, [](std::string_view line) {
        LandRec& country = Lande[NextRow(giLande, kCountryRows)];
        country.Pfx = Trim(Columns(line, 1, kPrefixLength));
        country.Navn = Trim(Columns(line, 11, 25));
        country.Kontinent = Trim(Columns(line, 36, 2));
        country.TidsZone = ToFloat32(ToNumber(Trim(Columns(line, 39, 5))));
        country.Wkd = false;
    });
}

void IndlæsRefPfx() {
    std::string_view last;
    LoadTable("refpfx.txt", "RefPfx.txt", "Indlæser refpfx.txt"_t, giRefPfx, [&last](std::string_view line) {
        const std::size_t row = NextRow(giRefPfx, kPrefixRows);
        PfxRec& prefix = RefPfx[row];
        prefix.Pfx = Trim(Columns(line, 1, kPrefixLength));
        prefix.Land = Trim(Columns(line, 11, kPrefixLength));
        prefix.CQzone = Columns(line, 21, 2);
        prefix.ITUzone = Columns(line, 24, 2);
        const std::string_view first = prefix.Pfx.Padded().substr(0, 1);
        if (first == last) return;
        last = first;
        gaPfxStart[static_cast<unsigned char>(first.front())] = static_cast<std::int16_t>(row);
    });
    IndexPrefixes();
}

void IndexPrefixes() {
    buckets.fill(0);
    // From the end, so that each chain ascends.
    for (int i = std::min<int>(giRefPfx, kPrefixRows); i > 0; --i) {
        const auto row = static_cast<std::size_t>(i);
        std::uint32_t hash = kHashStart;
        for (const char c : RefPfx[row].Pfx.Trimmed()) hash = Hash(hash, c);
        std::int16_t& first = buckets[BucketOf(hash)];
        nextInBucket[row] = first;
        first = static_cast<std::int16_t>(i);
    }
}

int FindWholeCall(std::string_view call, int start) {
    if (call.size() > kPrefixLength) return NotFound();
    std::uint32_t hash = kHashStart;
    for (const char c : call) hash = Hash(hash, c);
    const int row = FirstRow(call, hash, start);
    return row != 0 ? row : NotFound();
}

int FindPrefix(std::string_view s, int start) {
    int found = 0;
    std::uint32_t hash = kHashStart;
    for (std::size_t length = 0; length <= std::min(s.size(), kPrefixLength); ++length) {
        if (length > 0) hash = Hash(hash, s[length - 1]);
        const int row = FirstRow(s.substr(0, length), hash, start);
        if (row != 0 && (found == 0 || row < found)) found = row;
    }
    return found != 0 ? found : NotFound();
}

void ResetTables() {
    Lande.fill({});
    RefPfx.fill({});
    giLande = 0;
    giRefPfx = 0;
    gaPfxStart.fill(0);
    IndexPrefixes();
}

}  // namespace vatro
