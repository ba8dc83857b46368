// SPDX-License-Identifier: MIT
#include "world.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "codepage.h"
#include "names.h"

namespace fs = std::filesystem;

namespace vatro {

namespace {

constexpr std::string_view kFloppy = "floppy";

/// Where to put a directory that is deleted at the end. It need not be on disk: a place in memory, if there is one, makes the sync
/// after every contact free.
fs::path TemporaryPlace() {
    const fs::path memory = "/dev/shm";
    std::error_code error;
    const bool usable = std::getenv("TMPDIR") == nullptr && fs::is_directory(memory, error) &&
                        (fs::status(memory, error).permissions() & fs::perms::others_write) != fs::perms::none;
    return usable ? memory : fs::temp_directory_path();
}

fs::path NewDirectory() {
    const fs::path place = TemporaryPlace();
    std::random_device random;
    while (true) {
        const fs::path path = place / ("vatro-scenario-" + std::to_string(random()));
        if (fs::create_directory(path)) return path;
    }
}

std::vector<std::string_view> Components(std::string_view path) {
    std::vector<std::string_view> components;
    while (!path.empty()) {
        const std::size_t end = path.find_first_of("/\\");
        const std::string_view component = path.substr(0, end);
        path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
        if (component == "..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != ".") {
            components.push_back(component);
        }
    }
    return components;
}

}  // namespace

World::World() : root_(NewDirectory()), stays_(false) {
    CreateDirectories();
}

World::World(fs::path directory) : root_(std::move(directory)), stays_(true) {
    CreateDirectories();
}

World::~World() {
    std::error_code ignored;
    if (!stays_) fs::remove_all(root_, ignored);
}

void World::CreateDirectories() const {
    for (const std::string_view name : {kCurrentDirectory, std::string_view("log"), std::string_view("backup"), kFloppy})
        fs::create_directories(root_ / name);
}

fs::path World::Path(std::string_view path) const {
    fs::path result = root_;
    if (path.size() >= 2 && path[1] == ':') {
        const char letter = Upper(path[0]);
        path.remove_prefix(2);
        if (letter == 'A') {
            result /= kFloppy;
        } else {
            result /= std::string("drive-") + letter;
            std::error_code ignored;
            fs::create_directory(result, ignored);
        }
        for (const std::string_view component : Components(path)) result /= PathOf(component);
        return result;
    }
    const std::vector<std::string_view> components = Components(path);
    if (components.empty()) return root_ / kCurrentDirectory;
    std::error_code ignored;
    if (components.size() == 1 && !fs::is_directory(FindPath(root_ / PathOf(components.front())).path, ignored) &&
        !EqualNoCase(components.front(), "log") && !EqualNoCase(components.front(), "backup") &&
        !EqualNoCase(components.front(), kCurrentDirectory))
        result /= kCurrentDirectory;
    for (const std::string_view component : components) result /= PathOf(component);
    return result;
}

fs::path World::Found(std::string_view path) const {
    return FindPath(Path(path)).path;
}

std::optional<fs::path> World::SettingsFile() const {
    if (!stays_) return std::nullopt;
    return root_ / "settings.txt";
}

bool World::Write(std::string_view path, std::string_view content) const {
    const fs::path file = Found(path);
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    return !stream.fail();
}

std::optional<std::string> World::Read(std::string_view path) const {
    const fs::path file = Found(path);
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

void World::Remove(std::string_view path) const {
    fs::remove_all(Found(path));
}

std::optional<std::vector<std::string>> World::List(std::string_view path) const {
    const fs::path directory = Found(path);
    std::error_code error;
    if (!fs::is_directory(directory, error)) return std::nullopt;
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory)) names.push_back(NativeText(entry.path().filename()));
    // std::string compares characters as unsigned values.
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace vatro
