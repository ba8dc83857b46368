// SPDX-License-Identifier: MIT
//
// What a process asks of the disk, call by call, as the system sees it: no wrapper is between the program and its calls.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "power/teller.h"

namespace vatro {

/// A call that has succeeded. Paths are below the directory looked at.
struct DiskCall {
    enum class Kind { Create, Write, Truncate, Sync, SyncDirectory, Remove, Rename, Link, Told };
    Kind kind;
    std::filesystem::path path;
    /// Of a Rename and of a Link.
    std::filesystem::path to;
    /// Of a Write.
    std::string bytes;
    /// Where a Write begins; the length that a Truncate leaves.
    std::size_t at = 0;
};

/// Whether this system lets a process be looked at.
bool CanRecord();

/// Runs `life` in a process of its own and records what it does to the files below `directory`, and when it tells of
/// something. Throws if it fails, or changes a file by a call that is not known here.
std::vector<DiskCall> RecordCalls(const std::filesystem::path& directory, const std::function<void(const Teller&)>& life);

/// What goes wrong with one call that touches the directory: the file or directory opened, read, written, synced, closed, renamed,
/// linked, removed or created.
struct DiskFault {
    /// Counted from 0.
    std::size_t call = 0;
    /// The error number; 0 lets a write take only half of its bytes, and leaves other calls alone.
    int error = 0;
};

/// Runs `life` in a process of its own in which one call goes wrong. Gives the name of the call, empty if there were fewer.
/// Throws if the process crashes; `life` must catch what it expects.
std::string RunWithFault(const std::filesystem::path& directory, const DiskFault& fault, const std::function<void()>& life);

}  // namespace vatro
