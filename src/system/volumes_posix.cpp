// SPDX-License-Identifier: MIT
#include "volumes_posix.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>
#include <system_error>

namespace vatro {

namespace fs = std::filesystem;

namespace {

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

}  // namespace

std::optional<fs::path> FirstVolume(std::span<const fs::path> directories) {
    for (const fs::path& directory : directories) {
        std::optional<fs::path> first;
        std::error_code error;
        fs::directory_iterator entry(directory, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error))
            if (IsMounted(entry->path()) && (!first || entry->path() < *first)) first = entry->path();
        if (first) return first;
    }
    return std::nullopt;
}

std::optional<fs::path> FirstVolumeOfUser() {
    const std::string user = UserName();
    const std::array<fs::path, 2> directories{fs::path("/media") / user, fs::path("/run/media") / user};
    return FirstVolume(directories);
}

}  // namespace vatro
