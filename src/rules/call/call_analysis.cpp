// SPDX-License-Identifier: MIT
#include "call/call_analysis.h"

#include <initializer_list>

#include "columns.h"

namespace vatro {

namespace {

/// A call ends in a numbered suffix if its last two characters occur in this text. The pair "1/" occurs too; see MoveDigitSuffix.
constexpr std::string_view kDigitSuffixes = "/1/2/3/4/5/6/7/8/9/0";
constexpr std::string_view kDigits = "1234567890";

bool IsDecimalDigit(char c) {
    return kDigits.find(c) != std::string_view::npos;
}

bool HasDigitSuffix(std::string_view call) {
    return call.size() >= 2 && kDigitSuffixes.find(Right(call, 2)) != std::string_view::npos;
}

/// Removes the endings in one pass: each is tested against what the earlier tests have left.
std::string_view WithoutEndings(std::string_view call, std::initializer_list<std::string_view> endings) {
    for (const std::string_view ending : endings)
        if (call.ends_with(ending)) call.remove_suffix(ending.size());
    return call;
}

std::string_view StrippedOnce(std::string_view call) {
    call = WithoutEndings(call, {"/"});
    if (HasDigitSuffix(call)) call.remove_suffix(2);
    return WithoutEndings(call, {"/P", "/M", "/A", "/MM", "/AM", "/QRP", "/QRPP"});
}

/// Removes the endings of the country text. They differ from those of the base call: "/AM" stays, and a numbered suffix counts only at
/// the very end of the call, where MoveDigitSuffix has replaced it. Do not make them equal: contacts in logs that were sent in would get
/// another country (docs/rules.md).
std::string_view WithoutPortableOnce(std::string_view call) {
    return WithoutEndings(call, {"/P", "/M", "/A", "/MM", "/QRP", "/QRPP", "/"});
}

/// Repeats the pass until nothing more can be removed.
template <class Pass>
std::string_view UntilNothingGoes(std::string_view call, Pass pass) {
    for (std::string_view shorter = pass(call); shorter.size() != call.size(); shorter = pass(call)) call = shorter;
    return call;
}

}  // namespace

std::string StripCall(std::string_view call) {
    if (call.find('/') == std::string_view::npos) return std::string(call);
    const std::string_view base = UntilNothingGoes(call, StrippedOnce);
    const std::size_t slash = base.find('/');
    if (slash == std::string_view::npos) return std::string(base);
    // The longer side is the base call; if both are equally long, the side after the slash.
    const std::size_t half = (base.size() + 1) / 2;
    return std::string(half >= slash + 1 ? base.substr(slash + 1) : base.substr(0, slash));
}

std::string findPfxCall(std::string_view call) {
    if (call.size() < 2 || call.find('/') == std::string_view::npos) return std::string(call);
    const std::string moved = MoveDigitSuffix(call);
    const std::string_view text = UntilNothingGoes(moved, WithoutPortableOnce);
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return std::string(text);
    if (const std::size_t second = text.find('/', slash + 1); second != std::string_view::npos) {
        // With two slashes the middle part is dropped, and so is everything from a third slash on.
        const std::size_t third = text.find('/', second + 1);
        return std::string(text.substr(0, slash)).append(text.substr(second, third == std::string_view::npos ? third : third - second));
    }
    // The shorter side carries the country's prefix; if both are equally long, the side before the slash.
    const bool secondShorter = static_cast<double>(text.size() + 1) / 2 < static_cast<double>(slash + 1);
    return std::string(secondShorter ? text.substr(slash + 1) : text.substr(0, slash));
}

std::string MoveDigitSuffix(std::string_view call) {
    std::string moved(call);
    if (!HasDigitSuffix(call)) return moved;
    const char digit = moved.back();
    moved.resize(moved.size() - 2);
    for (std::size_t i = moved.size(); i-- > 0;)
        if (i + 1 < moved.size() && IsDecimalDigit(moved[i]) && !IsDecimalDigit(moved[i + 1])) moved[i] = digit;
    return moved;
}

}  // namespace vatro
