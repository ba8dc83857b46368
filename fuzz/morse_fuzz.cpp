// SPDX-License-Identifier: MIT
//
// Sends an arbitrary function key text with arbitrary values for its codes. The expansion terminates, the text is sent to its
// end, and no sample is much louder than the volume. Input: lines; the text, the call, the number, the report.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "morse/keyer.h"
#include "morse/text_codes.h"
#include "world.h"

namespace {

using namespace vatro;

constexpr int kVolume = 10000;
/// The peak can differ slightly from the volume.
constexpr int kLoudest = kVolume + kVolume / 4;

/// The most half seconds that a character can take: eight dashes at the speed below, and the pause after it.
constexpr std::size_t kHalvesPerCharacter = 3;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string_view> lines = LinesOf({reinterpret_cast<const char*>(data), size});
    const auto line = [&](std::size_t number) { return number < lines.size() ? std::string(lines[number].substr(0, 60)) : std::string(); };
    const std::string text = DanCWTekst(line(0), {.call = line(1), .report = line(3), .number = line(2), .ownCall = "OZ1QN"});
    if (text.empty() || text.back() != ' ') __builtin_trap();

    Keyer keyer;
    keyer.SetSpeed(60);
    keyer.MakePieces(800, kVolume);
    keyer.SetText(text, 0);
    bool active = true;
    for (std::size_t halves = 0; active; ++halves) {
        if (halves > kHalvesPerCharacter * text.size() + 2) __builtin_trap();
        const FilledHalf filled = keyer.Fill(halves % 2 == 0 ? Half::First : Half::Second);
        for (const std::int16_t sample : filled.samples)
            if (std::abs(static_cast<int>(sample)) > kLoudest) __builtin_trap();
        active = filled.active;
    }
    return 0;
}
