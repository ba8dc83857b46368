// SPDX-License-Identifier: MIT
//
// A temporary directory for each test on real files.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "codepage.h"
#include "disk_files.h"
#include "errors.h"
#include "temporary_directory.h"

namespace vatro {

class TemporaryWorld : public ::testing::Test {
protected:
    /// The program's path of a name in the directory, in the code page.
    std::string At(std::string_view name) const { return NativeText(root_) + "/" + std::string(name); }

    /// Writes a file; the name in UTF-8.
    void Put(const std::string& name, std::string_view content) const {
        std::ofstream(root_ / PathOfUtf8(name), std::ios::binary) << content;
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(root_ / PathOfUtf8(name), std::ios::binary);
        if (!file) return "(missing)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The file names in a directory, in UTF-8, sorted.
    std::vector<std::string> Names(const std::string& directory = ".") const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(root_ / PathOfUtf8(directory))) {
            const std::u8string name = entry.path().filename().u8string();
            names.emplace_back(name.begin(), name.end());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryDirectory directory_;
    const std::filesystem::path& root_ = directory_.Path();
};

/// The number of the failure of the call, or 0 if it succeeds.
template <class Call>
int NumberOf(Call call) {
    try {
        call();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

/// A temporary directory with the program's file access on it.
class DiskWorld : public TemporaryWorld {
protected:
    int OpenFails(int number, std::string_view path, FileMode mode) {
        return NumberOf([&] { files_.Open(number, path, mode); });
    }

    DiskFiles files_;
};

inline void WriteFile(Files& files, std::string_view path, FileMode mode, std::string_view line) {
    files.Open(1, path, mode);
    files.PrintLine(1, line);
    files.Close(1);
}

inline std::vector<std::string> ReadLines(Files& files, std::string_view path) {
    std::vector<std::string> lines;
    files.Open(1, path, FileMode::Input);
    while (!files.EndOfFile(1)) lines.push_back(files.LineInput(1));
    files.Close(1);
    return lines;
}

}  // namespace vatro
