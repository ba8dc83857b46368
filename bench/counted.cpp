// SPDX-License-Identifier: MIT
#include "counted.h"

#include <valgrind/callgrind.h>

#include <cstdio>
#include <string>

namespace vatro::bench {

void Count(const Piece& piece, const std::function<void(int)>& prepare, const std::function<void(int)>& work) {
    const std::string trigger = std::string(piece.name) + "|" + std::to_string(piece.lines) + "|" + std::to_string(piece.parts);
    CALLGRIND_START_INSTRUMENTATION;
    for (int round = 0; round < piece.rounds; ++round) {
        prepare(round);
        CALLGRIND_ZERO_STATS;
        CALLGRIND_TOGGLE_COLLECT;
        work(round);
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(trigger.c_str());
    }
    CALLGRIND_STOP_INSTRUMENTATION;
}

}  // namespace vatro::bench
