// SPDX-License-Identifier: MIT
#include "call/call_analysis.h"

#include <array>
#include <initializer_list>

#include "columns.h"

namespace vatro {

namespace {

/// The last two characters of a call are looked for in here as a substring.
constexpr std::string_view kTalsuffikser = "/1/2/3/4/5/6/7/8/9/0";
constexpr std::string_view kCifre = "1234567890";

bool ErCiffer(char c) {
    return kCifre.find(c) != std::string_view::npos;
}

bool HarTalsuffiks(std::string_view call) {
    return call.size() >= 2 && kTalsuffikser.find(Right(call, 2)) != std::string_view::npos;
}

/// Cuts the ending off if the call has it.
bool Fjern(std::string& call, std::string_view endelse) {
    if (!call.ends_with(endelse)) return false;
    call.resize(call.size() - endelse.size());
    return true;
}

/// One pass over the endings, each test on what the tests before it have left.
bool FjernEndelser(std::string& call, std::initializer_list<std::string_view> endelser) {
    bool fjernet = false;
    for (const std::string_view endelse : endelser) fjernet |= Fjern(call, endelse);
    return fjernet;
}

bool StripRunde(std::string& call) {
    bool fjernet = Fjern(call, "/");
    if (HarTalsuffiks(call)) {
        call.resize(call.size() - 2);
        fjernet = true;
    }
    fjernet |= FjernEndelser(call, {"/P", "/M", "/A", "/MM", "/AM", "/QRP", "/QRPP"});
    return fjernet;
}

}  // namespace

void StripCall(std::string& call) {
    if (call.find('/') == std::string::npos) return;
    while (StripRunde(call)) {
    }
    const std::size_t streg = call.find('/');
    if (streg == std::string::npos) return;
    // The longer side is the base call; the text behind the slash wins where neither is.
    const std::size_t halv = (call.size() + 1) / 2;
    if (halv >= streg + 1)
        call.erase(0, streg + 1);
    else
        call.erase(streg);
}

void FlytTalsuffiks(std::string& call) {
    if (!HarTalsuffiks(call)) return;
    const char ciffer = call.back();
    call.resize(call.size() - 2);
    for (std::size_t i = call.size(); i-- > 0;)
        if (i + 1 < call.size() && ErCiffer(call[i]) && !ErCiffer(call[i + 1])) call[i] = ciffer;
}

void findPfxCall(std::string_view call, std::string& pfxcall) {
    pfxcall = call;
    if (call.size() < 2 || call.find('/') == std::string_view::npos) return;
    FlytTalsuffiks(pfxcall);
    // Other endings than those of the base call, on purpose: no "/AM", and a numbered suffix counts only at the very end.
    while (FjernEndelser(pfxcall, {"/P", "/M", "/A", "/MM", "/QRP", "/QRPP", "/"})) {
    }
    const std::size_t streg = pfxcall.find('/');
    if (streg == std::string::npos) return;
    if (const std::size_t anden = pfxcall.find('/', streg + 1); anden != std::string::npos) {
        // Three pieces: the middle one goes, and whatever stands behind a third slash.
        const std::size_t tredje = pfxcall.find('/', anden + 1);
        pfxcall = pfxcall.substr(0, streg) + pfxcall.substr(anden, tredje == std::string::npos ? tredje : tredje - anden);
        return;
    }
    // The shorter side carries the country's prefix; the text before the slash wins where neither is.
    if (static_cast<double>(pfxcall.size() + 1) / 2 < static_cast<double>(streg + 1))
        pfxcall.erase(0, streg + 1);
    else
        pfxcall.erase(streg);
}

}  // namespace vatro
