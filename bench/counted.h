// SPDX-License-Identifier: MIT
//
// Counts the instructions of pieces of work below valgrind: one profile is written for each time that a piece has run, and
// instructions.py reads them. To be run as
//
//   valgrind --tool=callgrind --instr-atstart=no --collect-atstart=no --callgrind-out-file=DIRECTORY/out PROGRAM
//
// Only what the calling thread does is counted, and nothing of the system.
#pragma once

#include <functional>
#include <string_view>

namespace vatro::bench {

struct Piece {
    /// What the tables call it.
    std::string_view name;
    /// How many lines the log has, or 0 if that does not matter.
    int lines = 0;
    /// Through how many the count is divided.
    int parts = 1;
    /// How often it is counted. The median counts, so that a timer that fires during one of them does not.
    int rounds = 5;
};

/// Runs `prepare`, which is not counted, and `work`, as often as the piece asks for. Each is told the number of the round, from 0.
void Count(const Piece& piece, const std::function<void(int round)>& prepare, const std::function<void(int round)>& work);

}  // namespace vatro::bench
