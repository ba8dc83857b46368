// SPDX-License-Identifier: MIT
#include "names.h"

#include <system_error>

#include "codepage.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

/// The name of the first entry of the directory, in sorted order, that equals `name` except for case.
std::optional<fs::path> EntryNoCase(const fs::path& directory, const fs::path& name) {
    const std::string wanted = NativeText(name);
    std::optional<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(directory.empty() ? fs::path(".") : directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path candidate = entry->path().filename();
        if (EqualNoCase(NativeText(candidate), wanted) && (!found || candidate < *found)) found = candidate;
    }
    return found;
}

}  // namespace

fs::path PathOf(std::string_view text) {
    return PathOfUtf8(ToUtf8(text));
}

fs::path PathOfUtf8(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string NativeText(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return FromUtf8(std::string(utf8.begin(), utf8.end()));
}

FoundPath FindPath(const fs::path& spelled) {
    FoundPath found;
    found.path = spelled.root_path();
    found.exists = !spelled.empty();
    for (const fs::path& name : spelled.relative_path()) {
        std::optional<fs::path> entry;
        if (found.exists) {
            entry = SystemsEntry(found.path, name);
            if (!entry) entry = EntryNoCase(found.path, name);
        }
        found.exists = entry.has_value();
        found.path /= entry.value_or(name);
    }
    const fs::path directory = found.path.parent_path();
    std::error_code error;
    found.directoryExists = found.exists || directory.empty() || fs::is_directory(directory, error);
    return found;
}

std::string ShownPath(const fs::path& path) {
    fs::path shown = path;
    return NativeText(shown.make_preferred());
}

}  // namespace vatro
