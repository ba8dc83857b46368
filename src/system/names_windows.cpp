// SPDX-License-Identifier: MIT
#include "names.h"

#include <windows.h>

#include <system_error>

namespace vatro {

namespace fs = std::filesystem;

fs::path NativePath(std::string_view path) {
    return PathOf(path);
}

std::optional<fs::path> SystemsEntry(const fs::path& directory, const fs::path& name) {
    const fs::path path = directory / name;
    std::error_code error;
    if (!fs::exists(path, error)) return std::nullopt;
    // FindFirstFile would return the directory that these names refer to.
    if (name.empty() || name == "." || name == "..") return name;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(path.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return name;
    FindClose(search);
    // Some files also have a short name; the system may have found the file by that.
    const bool itself = CompareStringOrdinal(entry.cFileName, -1, name.c_str(), -1, TRUE) == CSTR_EQUAL;
    return itself ? fs::path(entry.cFileName) : name;
}

}  // namespace vatro
