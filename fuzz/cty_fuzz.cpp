// SPDX-License-Identifier: MIT
//
// The check of a country file, and what is made of it to fit: never more items than there is room for, in a file that reads
// the same again. Input: the file as it stands.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "country/cty_fit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    constexpr std::size_t kRoom = 20;
    try {
        std::vector<CtyLand> lande = LæsCtyFil(CtyLinjer({reinterpret_cast<const char*>(data), size}));
        KontrollerCty(lande);
        TilpasCty(lande, kRoom);
        const std::vector<std::string> fitted = SkrivCty(lande);
        std::vector<CtyLand> again = LæsCtyFil(fitted);
        std::size_t items = 0;
        for (const CtyLand& land : again) items += land.poster.size();
        if (items > kRoom || SkrivCty(again) != fitted) __builtin_trap();
    } catch (const CtyFejl&) {
        // Told by the tool.
    }
    return 0;
}
