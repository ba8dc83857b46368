// SPDX-License-Identifier: MIT
//
// Checks an arbitrary country file and fits it to the program's table. The result never has more items than the table has room
// for, and reading the new file gives the same items again. Input: the file itself.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "country/cty_fit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    constexpr std::size_t kRoom = 20;
    try {
        const std::vector<CtyCountry> countries = ReadCtyFile(CtyLines({reinterpret_cast<const char*>(data), size}));
        CheckCty(countries);
        const std::vector<std::string> fitted = WriteCty(FitCty(countries, kRoom).countries);
        std::vector<CtyCountry> again = ReadCtyFile(fitted);
        std::size_t items = 0;
        for (const CtyCountry& country : again) items += country.items.size();
        if (items > kRoom || WriteCty(again) != fitted) __builtin_trap();
    } catch (const CtyError&) {
        // The tool reports this.
    }
    return 0;
}
