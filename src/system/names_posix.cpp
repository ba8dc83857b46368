// SPDX-License-Identifier: MIT
#include "names.h"

#include <algorithm>
#include <system_error>

#include "codepage.h"
#include "errors.h"
#include "volumes_posix.h"

namespace vatro {

namespace fs = std::filesystem;

fs::path NativePath(std::string_view path) {
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    const bool onDrive = text.size() >= 2 && Upper(text[0]) == 'A' && text[1] == ':' && (text.size() == 2 || text[2] == '/');
    if (!onDrive) return PathOf(text);
    const auto volume = FirstVolumeOfUser();
    if (!volume) throw RunTimeError(Failure::PathNotFound);
    const std::size_t name = text.find_first_not_of('/', 2);
    return name == std::string::npos ? *volume : *volume / PathOf(std::string_view(text).substr(name));
}

std::optional<fs::path> SystemsEntry(const fs::path& directory, const fs::path& name) {
    std::error_code error;
    if (!fs::exists(directory / name, error)) return std::nullopt;
    return name;
}

}  // namespace vatro
