// SPDX-License-Identifier: MIT
#include <system_error>

#include "pinned_directory.h"

namespace vatro {

int PinnedDirectory::Hold(const std::filesystem::path& directory) {
    Release();
    std::error_code error;
    if (!std::filesystem::is_directory(directory, error))
        return error ? error.value() : std::make_error_code(std::errc::no_such_file_or_directory).value();
    handle_ = 0;
    path_ = directory;
    return 0;
}

void PinnedDirectory::Release() noexcept {
    handle_ = kNone;
    path_.clear();
}

}  // namespace vatro
