// SPDX-License-Identifier: MIT
//
// Any text of a function key with any values of its codes: it expands to an end, and is sent to its end in samples hardly
// louder than the volume. Input: lines; the text, the call, the number, the report.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "frame/state.h"
#include "frame/station.h"
#include "keyer/keyer_settings.h"
#include "keyer/texts.h"
#include "morse/synthesis.h"
#include "world.h"

namespace {

using namespace vatro;

constexpr int kVolume = 10000;
/// The peak wanders a little round the volume.
constexpr int kLoudest = kVolume + kVolume / 4;

/// Listens to what is written.
class Ear : public SoundBuffer {
public:
    void SetNotificationPositions(std::span<const PositionNotification>) override {}
    void Write(int startByte, int size, std::span<const std::int16_t> image) override {
        const auto first = static_cast<std::size_t>(startByte / kBytesPerSample);
        for (const std::int16_t sample : image.subspan(first, static_cast<std::size_t>(size / kBytesPerSample)))
            if (std::abs(static_cast<int>(sample)) > kLoudest) __builtin_trap();
    }
    void SetCurrentPosition(int) override {}
    void PlayLooping() override {}
    void Stop() override {}
};

/// The most half seconds that a character can take: eight dashes at the speed below, and the pause behind it.
constexpr std::size_t kHalvesPerCharacter = 3;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string_view> lines = LinesOf({reinterpret_cast<const char*>(data), size});
    const auto line = [&](std::size_t number) { return number < lines.size() ? std::string(lines[number].substr(0, 60)) : std::string(); };
    giCWWPM = 60;
    giCWTone = 800;
    glCWVolume = kVolume;
    giCWFarnsworth = 0;
    gsCWRaa = line(0);
    gsCWCall = line(1);
    gsCWNummer = line(2);
    gsCWRST = line(3);
    desk().gsMyCall = "OZ1QN";
    DanCWTekst();
    if (gsCWTekst.empty() || gsCWTekst.back() != ' ') __builtin_trap();

    BeregnPriklen();
    TildelPladser();
    DanTone();
    DanElementer();
    NulstilStilling();
    glCWSlat = 0;
    Ear ear;
    bool active = true;
    for (std::size_t halves = 0; active; ++halves) {
        if (halves > kHalvesPerCharacter * gsCWTekst.size() + 2) __builtin_trap();
        halves % 2 == 0 ? FyldDel1(active, ear) : FyldDel2(active, ear);
    }
    return 0;
}
