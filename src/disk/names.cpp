// SPDX-License-Identifier: MIT
#include "disk/names.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <system_error>

#include "text/codepage.h"
#include "text/errors.h"

#ifndef _WIN32
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vatro {

namespace fs = std::filesystem;

namespace {

fs::path PathOf(std::string_view text) {
    const std::string utf8 = ToUtf8(text);
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

#ifndef _WIN32

/// The path of the entry of the directory that differs from the name only in case.
std::optional<fs::path> FindEntry(const fs::path& directory, const fs::path& name) {
    const std::string wanted = NativeText(name);
    std::optional<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(directory.empty() ? fs::path(".") : directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path candidate = entry->path().filename();
        if (EqualNoCase(NativeText(candidate), wanted) && (!found || candidate < *found)) found = candidate;
    }
    if (found) found = directory / *found;
    return found;
}

std::string UserName() {
    const passwd* user = getpwuid(getuid());
    if (user != nullptr) return user->pw_name;
    const char* name = std::getenv("USER");
    return name == nullptr ? "" : name;
}

bool IsMounted(const fs::path& directory) {
    struct stat status {};
    struct stat above {};
    return stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && stat((directory / "..").c_str(), &above) == 0 &&
           status.st_dev != above.st_dev;
}

#endif

}  // namespace

fs::path NativePath(std::string_view path) {
#ifdef _WIN32
    return PathOf(path);
#else
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    const bool onDrive = text.size() >= 2 && Upper(text[0]) == 'A' && text[1] == ':' && (text.size() == 2 || text[2] == '/');
    if (!onDrive) return PathOf(text);
    const std::string user = UserName();
    const std::array<fs::path, 2> directories{fs::path("/media") / user, fs::path("/run/media") / user};
    const auto volume = FirstVolume(directories);
    if (!volume) throw RunTimeError(Failure::PathNotFound);
    const std::size_t name = text.find_first_not_of('/', 2);
    return name == std::string::npos ? *volume : *volume / PathOf(std::string_view(text).substr(name));
#endif
}

std::string NativeText(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return FromUtf8(std::string(utf8.begin(), utf8.end()));
}

std::optional<fs::path> FirstVolume(std::span<const fs::path> directories) {
#ifdef _WIN32
    static_cast<void>(directories);
#else
    for (const fs::path& directory : directories) {
        std::optional<fs::path> first;
        std::error_code error;
        fs::directory_iterator entry(directory, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error))
            if (IsMounted(entry->path()) && (!first || entry->path() < *first)) first = entry->path();
        if (first) return first;
    }
#endif
    return std::nullopt;
}

FoundPath FindPath(const fs::path& spelled) {
    FoundPath found;
#ifdef _WIN32
    // Case does not count for the system itself.
    found.path = spelled;
    found.exists = Exists(spelled);
    found.directoryExists = !spelled.has_parent_path() || Exists(spelled.parent_path());
#else
    found.exists = true;
    for (auto component = spelled.begin(); component != spelled.end(); ++component) {
        found.directoryExists = found.exists;
        fs::path next = found.path / *component;
        if (found.exists && !Exists(next)) {
            const auto entry = FindEntry(found.path, *component);
            found.exists = entry.has_value();
            if (entry) next = *entry;
        }
        found.path = std::move(next);
    }
    if (found.path.empty()) found.exists = false;
#endif
    return found;
}

}  // namespace vatro
