// SPDX-License-Identifier: MIT
//
// A lamp in the corner of the menu bar: what the desktop program tells the operator all the time, without asking anything.
#pragma once

#include <string>

namespace vatro {

/// What one lamp shows. The texts are in the code page.
struct Lamp {
    enum class State {
        /// Nothing to tell yet; the lamp is not shown.
        Off,
        Good,
        /// Something has happened that the operator should know of.
        Notice,
        /// Something is wrong.
        Bad,
    };

    State state = State::Off;
    /// What is shown where there is room.
    std::string text;
    /// One sentence or two: the tooltip, and what a screen reader reads.
    std::string tip;
    /// What is shown beside the sign where `text` has no room: a time or two words, or nothing.
    std::string brief{};

    friend bool operator==(const Lamp&, const Lamp&) = default;
};

}  // namespace vatro
