// SPDX-License-Identifier: MIT
//
// The program started for a benchmark: all of the logic, files on the real disk, and the front
// without windows, so that what is measured is the program and not a toolkit.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform.h"

namespace vatro::bench {

/// A directory for what a benchmark writes, on the disk of the current directory; removed at the end.
class Workplace {
public:
    Workplace();
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;
    std::filesystem::path Path(std::string_view name) const { return root_ / name; }

    /// Full tables, this log of 80 metres SSB, and the settings that lead to them.
    void Furnish(const std::vector<std::string>& log, Settings& settings) const;
    std::filesystem::path LogFile() const;

private:
    std::filesystem::path root_;
};

/// The program from its start to its end. One at a time.
class Program {
public:
    /// Starts with full tables and this log of 80 metres SSB.
    explicit Program(const std::vector<std::string>& log);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::filesystem::path LogFile() const { return workplace_.LogFile(); }
    std::filesystem::path Path(std::string_view name) const { return workplace_.Path(name); }

    /// A key by its name: "Enter", "Backspace", "Space".
    void Press(const char* key);
    /// The characters, one key after the other.
    void Type(std::string_view text);

private:
    struct Services;

    Workplace workplace_;
    std::unique_ptr<Services> services_;
};

}  // namespace vatro::bench
