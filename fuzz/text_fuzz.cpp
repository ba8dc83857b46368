// SPDX-License-Identifier: MIT
//
// Conversions of text in files and fields: code page, numbers, times, dates.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "codepage.h"
#include "datetime.h"
#include "errors.h"
#include "numbers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    const std::string_view text(reinterpret_cast<const char*>(data), size);

    // Every byte of the code page survives the round trip. UTF-8 from outside becomes some text in the code page.
    if (FromUtf8(ToUtf8(text)) != text) __builtin_trap();
    const std::string foreign = FromUtf8(text);
    if (FromUtf8(ToUtf8(foreign)) != foreign) __builtin_trap();
    if (!ContainsNoCase(text, UpperText(text))) __builtin_trap();

    static_cast<void>(NumericValue(text));
    bool converts = true;
    try {
        static_cast<void>(ToNumber(text));
    } catch (const RunTimeError& failure) {
        // A number can be too large for its type.
        converts = failure.Which() == Failure::Overflow;
    }
    if (IsNumeric(text) && !converts) __builtin_trap();

    if (const auto time = ParseTime(text); time && (time->hour > 23 || time->minute > 59 || time->second > 59)) __builtin_trap();
    if (const auto date = ParseDate(text)) {
        const auto again = ParseDate(FormatDate(*date));
        if (!again || again->day != date->day || again->month != date->month) __builtin_trap();
    }
    return 0;
}
