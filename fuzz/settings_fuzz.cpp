// SPDX-License-Identifier: MIT
//
// Starts the program with arbitrary settings. It sends Morse and accepts keys, or ends with a failure that it reports. Input:
// lines; the first character of each selects the settings key.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "entry/frmMain.h"
#include "frame/start.h"
#include "world.h"

namespace {

using namespace vatro;

constexpr std::array kKeys{
    std::pair{"Settings", "gsKlasse"},
    std::pair{"Settings", "gsFDLib"},
    std::pair{"Settings", "gsLogLib"},
    std::pair{"Settings", "gsBackupLib"},
    std::pair{"Settings", "Band"},
    std::pair{"Settings", "Mode"},
    std::pair{"Settings", "QsoMode"},
    std::pair{"Settings", "AutoTid"},
    std::pair{"Settings", "VisLand"},
    std::pair{"Settings", "MyCall"},
    std::pair{"Settings", "UTC"},
    std::pair{"Settings", "gsTelefon"},
    std::pair{"Settings", "LastOP"},
    std::pair{"Settings", "MainLeft"},
    std::pair{"Settings", "MainTop"},
    std::pair{"CW", "WPM"},
    std::pair{"CW", "Tone"},
    std::pair{"CW", "Volume"},
    std::pair{"CW", "Farnsworth"},
    std::pair{"CW", "N"},
    std::pair{"CW", "T"},
    std::pair{"CW", "F1"},
    std::pair{"CW", "F8"},
};

struct World : RunningWorld {
    World() { start = settings; }
    SettingsStore start;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* const world = new World;
    world->settings = world->start;
    for (const std::string_view line : LinesOf({reinterpret_cast<const char*>(data), size})) {
        if (line.empty()) continue;
        const auto& [section, key] = kKeys[static_cast<unsigned char>(line.front()) % kKeys.size()];
        world->settings.Write(section, key, line.substr(1));
    }
    BeginProgram();
    Dispatch(StartProgram);
    for (const char* key : {"F1", "F8", "Esc", "A", "Enter"})
        if (ProgramRuns()) world->front.Press({.name = key});
    if (ProgramRuns()) EndProgram();
    return 0;
}
