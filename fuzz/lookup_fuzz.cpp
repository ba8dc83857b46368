// SPDX-License-Identifier: MIT
//
// Searches an arbitrary prefix table for an arbitrary call and compares the result with a plain scan. Input: lines; the first
// is the call, every other one is the prefix of a row.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "call/call_analysis.h"
#include "columns.h"
#include "country/lookup.h"
#include "country/tables.h"

namespace {

using namespace vatro;

/// The first row from `start` on that meets the condition, found by looking at each row.
template <class Meets>
std::optional<int> Scan(const CountryTables& tables, int start, Meets meets) {
    for (int i = std::max(start, 1); i <= tables.Rows().giRefPfx; ++i)
        if (meets(tables.Rows().RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed())) return i;
    return std::nullopt;
}

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const std::string_view call = TakeLine(rest);
    if (call.empty()) return 0;

    static CountryRows rows;
    rows = {};
    rows.giLande = 1;
    rows.Lande[1].Pfx = "QQ";
    while (!rest.empty() && rows.giRefPfx < 100) {
        PfxRec& row = rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)];
        row.Pfx = Trim(TakeLine(rest));
        row.Land = "QQ";
    }
    static CountryTables tables;
    tables.Take(rows);

    const std::string prefixText = findPfxCall(call);
    for (int start = 0; start <= rows.giRefPfx; ++start) {
        if (tables.FindWholeCall(call, start) != Scan(tables, start, [&](std::string_view prefix) { return prefix == call; }))
            __builtin_trap();
        if (tables.FindPrefix(prefixText, start) !=
            Scan(tables, start, [&](std::string_view prefix) { return prefixText.starts_with(prefix); }))
            __builtin_trap();
    }

    const std::string base = StripCall(call);
    if (base.size() > call.size()) __builtin_trap();
    // Stripping again can shorten only a call that still has a slash.
    if (base.find('/') == std::string::npos && StripCall(base) != base) __builtin_trap();

    WorkedCountries worked(tables);
    const WorkedCountries::Result marked = worked.LandWkd(call, MarkAction::Mark);
    if (marked.changed != worked.Wkd(1) || marked.changed == marked.prefix.empty()) __builtin_trap();
    worked.LandStatusTekst(call);
    if (worked.LandWkd(call, MarkAction::Unmark).changed != marked.changed || worked.Wkd(1)) __builtin_trap();
    return 0;
}
