// SPDX-License-Identifier: MIT
#include "call/call_analysis.h"

#include <array>
#include <initializer_list>

#include "columns.h"

namespace vatro {

namespace {

/// The last two characters of a call are looked for in here as a substring.
constexpr std::string_view kDigitSuffixes = "/1/2/3/4/5/6/7/8/9/0";
constexpr std::string_view kDigits = "1234567890";

bool IsDecimalDigit(char c) {
    return kDigits.find(c) != std::string_view::npos;
}

bool HasDigitSuffix(std::string_view call) {
    return call.size() >= 2 && kDigitSuffixes.find(Right(call, 2)) != std::string_view::npos;
}

/// Cuts the ending off if the call has it.
bool CutEnding(std::string& call, std::string_view ending) {
    if (!call.ends_with(ending)) return false;
    call.resize(call.size() - ending.size());
    return true;
}

/// One pass over the endings, each test on what the tests before it have left.
bool CutEndings(std::string& call, std::initializer_list<std::string_view> endings) {
    bool cut = false;
    for (const std::string_view ending : endings) cut |= CutEnding(call, ending);
    return cut;
}

bool StripOnce(std::string& call) {
    bool cut = CutEnding(call, "/");
    if (HasDigitSuffix(call)) {
        call.resize(call.size() - 2);
        cut = true;
    }
    cut |= CutEndings(call, {"/P", "/M", "/A", "/MM", "/AM", "/QRP", "/QRPP"});
    return cut;
}

}  // namespace

void StripCall(std::string& call) {
    if (call.find('/') == std::string::npos) return;
    while (StripOnce(call)) {
    }
    const std::size_t slash = call.find('/');
    if (slash == std::string::npos) return;
    // The longer side is the base call; the text behind the slash wins where neither is.
    const std::size_t half = (call.size() + 1) / 2;
    if (half >= slash + 1)
        call.erase(0, slash + 1);
    else
        call.erase(slash);
}

void MoveDigitSuffix(std::string& call) {
    if (!HasDigitSuffix(call)) return;
    const char digit = call.back();
    call.resize(call.size() - 2);
    for (std::size_t i = call.size(); i-- > 0;)
        if (i + 1 < call.size() && IsDecimalDigit(call[i]) && !IsDecimalDigit(call[i + 1])) call[i] = digit;
}

void findPfxCall(std::string_view call, std::string& prefixText) {
    prefixText = call;
    if (call.size() < 2 || call.find('/') == std::string_view::npos) return;
    MoveDigitSuffix(prefixText);
    // Other endings than those of the base call, on purpose: no "/AM", and a numbered suffix counts only at the very end.
    while (CutEndings(prefixText, {"/P", "/M", "/A", "/MM", "/QRP", "/QRPP", "/"})) {
    }
    const std::size_t slash = prefixText.find('/');
    if (slash == std::string::npos) return;
    if (const std::size_t second = prefixText.find('/', slash + 1); second != std::string::npos) {
        // Three pieces: the middle one goes, and whatever stands behind a third slash.
        const std::size_t third = prefixText.find('/', second + 1);
        prefixText = prefixText.substr(0, slash) + prefixText.substr(second, third == std::string::npos ? third : third - second);
        return;
    }
    // The shorter side carries the country's prefix; the text before the slash wins where neither is.
    if (static_cast<double>(prefixText.size() + 1) / 2 < static_cast<double>(slash + 1))
        prefixText.erase(0, slash + 1);
    else
        prefixText.erase(slash);
}

}  // namespace vatro
