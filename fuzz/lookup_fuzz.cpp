// SPDX-License-Identifier: MIT
//
// Searches an arbitrary prefix table for an arbitrary call and compares the result with a plain scan. Input: lines; the first
// is the call, every other one is the prefix of a row.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "call/call_analysis.h"
#include "columns.h"
#include "country/lookup.h"
#include "country/tables.h"
#include "errors.h"
#include "frame/state.h"

namespace {

using namespace vatro;

template <class Meets>
int Scan(int start, Meets meets) {
    for (int i = std::max(start, 1); i <= desk().tables.giRefPfx; ++i)
        if (meets(desk().tables.RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed())) return i;
    return 0;
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

    ResetTables();
    desk().tables.giLande = 1;
    desk().tables.Lande[1].Pfx = "QQ";
    while (!rest.empty() && desk().tables.giRefPfx < 100) {
        ++desk().tables.giRefPfx;
        desk().tables.RefPfx[static_cast<std::size_t>(desk().tables.giRefPfx)].Pfx = Trim(TakeLine(rest));
        desk().tables.RefPfx[static_cast<std::size_t>(desk().tables.giRefPfx)].Land = "QQ";
    }
    IndexPrefixes();

    std::string prefixText;
    findPfxCall(call, prefixText);
    for (int start = 0; start <= desk().tables.giRefPfx; ++start) {
        if (FindWholeCall(call, start) != Scan(start, [&](std::string_view prefix) { return prefix == call; })) __builtin_trap();
        if (FindPrefix(prefixText, start) != Scan(start, [&](std::string_view prefix) { return prefixText.starts_with(prefix); }))
            __builtin_trap();
    }

    std::string base(call);
    StripCall(base);
    if (base.size() > call.size()) __builtin_trap();
    std::string again = base;
    StripCall(again);
    // Stripping again can shorten only a call that still has a slash.
    if (base.find('/') == std::string::npos && again != base) __builtin_trap();

    desk().gbVisLand = true;
    desk().giMult = 0;
    std::string found;
    LandWkd(call, found, MarkAction::Mark);
    if ((desk().giMult == 1) != desk().tables.Lande[1].Wkd || (desk().giMult == 1) == found.empty()) __builtin_trap();
    std::string status;
    LandStatusTekst(call, status);
    LandWkd(call, found, MarkAction::Unmark);
    if (desk().giMult != 0 || desk().tables.Lande[1].Wkd) __builtin_trap();
    return 0;
}
