// SPDX-License-Identifier: MIT
//
// A temporary directory for a test, removed with all its contents at the end.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace vatro {

class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::random_device random;
        do path_ = std::filesystem::temp_directory_path() / ("vatro-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace vatro
