// SPDX-License-Identifier: MIT
#include "score/points.h"

#include <algorithm>
#include <array>
#include <string>

#include "call/call_analysis.h"
#include "codepage.h"

namespace vatro {

bool ErDansk(std::string_view call) {
    constexpr std::string_view kDanishPrefixes = "5P,5Q,OU,OV,OW,OZ,XP,";
    const std::string_view prefix = call.substr(0, 2);
    std::array<char, 2> upper{};
    std::ranges::transform(prefix, upper.begin(), Upper);
    return !call.empty() && kDanishPrefixes.find(std::string_view(upper.data(), prefix.size())) != std::string_view::npos;
}

std::int32_t EuropeanPoints(std::string_view call) {
    if (ErDansk(call)) return 1;
    return call.ends_with("/P") ? 5 : 3;
}

std::int32_t BeregnPoint(std::string_view call, const CountryTables& tables, const Stations& stations, bool gbVisLand) {
    std::string known = MoveDigitSuffix(call);
    if (known.ends_with("/QRP")) known.resize(known.size() - 4);
    // A call that is only a suffix, such as "/3", leaves nothing to look up.
    if (known.empty()) return EuropeanPoints(known);

    // Each step overrides those before it.
    std::int32_t points = EuropeanPoints(known);
    const FoundCountry country = FindCountry(tables, known);
    if (const auto decided = CountryPoints(tables, country, known)) points = *decided;
    if (const auto decided = stations.StationPoints(StripCall(known))) points = *decided;
    if (gbVisLand && IsUnknown(tables, country)) points = 0;
    return points;
}

}  // namespace vatro
