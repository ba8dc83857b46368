// SPDX-License-Identifier: MIT
//
// The program, started for a benchmark: all of its logic, files on the real disk, and the front without windows, so that
// the program is measured and not the toolkit.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform.h"

namespace vatro::bench {

/// A directory for the files of a benchmark, on the same disk as the current directory; removed at the end.
class Workplace {
public:
    Workplace();
    /// On the disk of this directory.
    explicit Workplace(const std::filesystem::path& above);
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;
    std::filesystem::path Path(std::string_view name) const { return root_ / name; }

    /// Writes full tables, this log of 80 metres SSB, and settings that point to them.
    void Furnish(const std::vector<std::string>& log, Settings& settings) const;
    std::filesystem::path LogFile() const;

private:
    std::filesystem::path root_;
};

/// The program from its start to its end. Only one can exist at a time.
class Program {
public:
    /// What the desktop program has beside its files.
    enum class With {
        Nothing,
        /// The lamp of the last contact, and the live second copy, on a disk of its own if the machine has one in memory.
        LampsAndCopy,
    };

    /// Starts the program with full tables and this log of 80 metres SSB.
    explicit Program(const std::vector<std::string>& log, With with = With::Nothing);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::filesystem::path LogFile() const { return workplace_.LogFile(); }
    std::filesystem::path Path(std::string_view name) const { return workplace_.Path(name); }

    /// Presses the key of this name: "Enter", "Backspace", "Space".
    void Press(const char* key);
    /// Types the characters one by one.
    void Type(std::string_view text);

private:
    struct Services;
    struct Follower;

    Workplace workplace_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Follower> follower_;
};

}  // namespace vatro::bench
