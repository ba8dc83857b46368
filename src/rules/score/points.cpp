// SPDX-License-Identifier: MIT
#include "score/points.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "country/lookup.h"
#include "score/stations.h"

namespace vatro {

std::int32_t giQSOPoint = 0;

bool ErDansk(std::string_view call) {
    constexpr std::string_view kDanishPrefixes = "5P,5Q,OU,OV,OW,OZ,XP,";
    return !call.empty() && kDanishPrefixes.find(UpperText(call.substr(0, 2))) != std::string_view::npos;
}

void BeregnPoint(std::string call) {
    MoveDigitSuffix(call);
    if (call.ends_with("/QRP")) call.resize(call.size() - 4);
    giQSOPoint = 3;
    // A suffix by itself, such as "/3", leaves nothing to look up.
    if (call.empty()) return;
    std::string basis = call;
    StripCall(basis);

    // Each step overrides those before it.
    if (ErDansk(call))
        giQSOPoint = 1;
    else if (call.ends_with("/P"))
        giQSOPoint = 5;
    std::string result;
    LandWkd(call, result, MarkAction::Test);
    EDRstnWkd(basis, MarkAction::Test);
    std::string text;
    LandStatusTekst(call, text);
    if (IsUnknown(text)) giQSOPoint = 0;
}

}  // namespace vatro
