// SPDX-License-Identifier: MIT
//
// Records the disk calls of a process one by one as the kernel sees them, without a wrapper between the program and its calls.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "power/teller.h"

namespace vatro {

/// A call that succeeded. Paths are relative to the recorded directory.
struct DiskCall {
    enum class Kind { Create, Write, Truncate, Sync, SyncDirectory, Remove, Rename, Link, Told };
    Kind kind;
    std::filesystem::path path;
    /// The second path of a Rename or a Link.
    std::filesystem::path to;
    /// The data of a Write.
    std::string bytes;
    /// The offset at which a Write begins, or the length that a Truncate leaves.
    std::size_t at = 0;
};

/// Whether this system lets one process trace another.
bool CanRecord();

/// Runs `life` in a child process and records what it does to the files below `directory`, and when it reports progress.
/// Throws if `life` fails, or changes a file by a call that is not known here.
std::vector<DiskCall> RecordCalls(const std::filesystem::path& directory, const std::function<void(const Teller&)>& life);

/// The fault to inject into one call on the directory: an open, read, write, sync, close, rename, link, remove or create.
struct DiskFault {
    /// The index of the call, from 0.
    std::size_t call = 0;
    /// The error number. 0 lets a write take only half of its bytes, and does not change other calls.
    int error = 0;
};

/// Runs `life` in a child process in which one call fails. Returns the name of the call, or an empty string if there were fewer
/// calls. Throws if the process crashes; `life` must catch the failures it expects.
std::string RunWithFault(const std::filesystem::path& directory, const DiskFault& fault, const std::function<void()>& life);

/// The path as every process has it: one that begins with "/proc/self/fd/N", as a process names a directory that it holds open, is given
/// by the directory itself.
std::filesystem::path PathFor(const std::filesystem::path& path, int process);

}  // namespace vatro
