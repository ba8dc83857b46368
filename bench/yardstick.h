// SPDX-License-Identifier: MIT
//
// Fixed work with which results are compared: bytes that are scanned, files that are read. It uses the C library and the system, and
// nothing of the program, which therefore cannot make a yardstick longer or shorter.
#pragma once

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace vatro::bench {

/// As many letters from A to P, always the same ones.
inline std::string FixedBytes(std::size_t count) {
    std::string bytes(count, ' ');
    std::uint32_t number = 20260905;
    for (char& byte : bytes) {
        number = number * 1664525 + 1013904223;
        byte = static_cast<char>('A' + (number >> 28));
    }
    return bytes;
}

/// Looks once at every one of these bytes, for two letters that are not among them.
inline bool Scan(const std::string& bytes) {
    return memmem(bytes.data(), bytes.size(), "QZ", 2) != nullptr;
}

/// Reads a file to its end. False if it cannot be read.
inline bool ReadFile(const std::filesystem::path& file, std::vector<char>& buffer) {
    const int handle = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return false;
    ssize_t got = 0;
    do {
        got = read(handle, buffer.data(), buffer.size());
        benchmark::ClobberMemory();
    } while (got > 0);
    return close(handle) == 0 && got == 0;
}

/// Syncs a file, or a directory with O_DIRECTORY.
inline bool Sync(const std::filesystem::path& path, int flags) {
    const int handle = open(path.c_str(), flags | O_CLOEXEC);
    if (handle < 0) return false;
    const bool synced = fsync(handle) == 0;
    return close(handle) == 0 && synced;
}

}  // namespace vatro::bench
