// SPDX-License-Identifier: MIT
#include "play.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "frame/start.h"
#include "names.h"
#include "player.h"
#include "scenario.h"
#include "world.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

constexpr int kAllWell = 0;
constexpr int kDiffers = 1;
constexpr int kError = 2;

enum class Mode { Compare, Print, Update };

struct Options {
    Mode mode = Mode::Compare;
    std::optional<std::string> keep;
    std::vector<std::string> files;
};

std::optional<Options> ReadOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--print") {
            options.mode = Mode::Print;
        } else if (argument == "--update") {
            options.mode = Mode::Update;
        } else if (argument == "--keep") {
            if (++i == arguments.size()) return std::nullopt;
            options.keep = arguments[i];
        } else if (argument.starts_with("--")) {
            return std::nullopt;
        } else {
            options.files.push_back(argument);
        }
    }
    if (options.files.empty()) return std::nullopt;
    return options;
}

int PlayFile(const std::string& file, const Options& options, Driver& driver) {
    const fs::path path = PathOfUtf8(file);
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw ScenarioError(0, "cannot be read");
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    stream.close();
    const Scenario scenario(text);
    const std::optional<World> world =
        options.keep ? std::optional<World>(std::in_place, PathOfUtf8(*options.keep)) : std::optional<World>(std::in_place);
    ResetAll();
    Player player(scenario, *world, driver, StartProgram);
    player.Play();
    const auto& output = player.Outputs();
    switch (options.mode) {
        case Mode::Compare:
            if (scenario.Matches(output)) return kAllWell;
            std::cout << scenario.Diff(file, output);
            return kDiffers;
        case Mode::Print:
            std::cout << scenario.WithOutput(output);
            return kAllWell;
        case Mode::Update:
            break;
    }
    const std::string updated = scenario.WithOutput(output);
    if (updated == text) return kAllWell;
    std::ofstream update(path, std::ios::binary | std::ios::trunc);
    update << updated;
    update.close();
    if (update.fail()) throw ScenarioError(0, "cannot be written");
    return kAllWell;
}

}  // namespace

int PlayMain(const std::vector<std::string>& arguments, const std::function<std::unique_ptr<Driver>()>& makeDriver) {
    const auto options = ReadOptions({arguments.begin() + 1, arguments.end()});
    if (!options) {
        std::cerr << "usage: " << arguments.front() << " [--print | --update] [--keep DIR] FILE...\n";
        return kError;
    }
    for (const std::string& file : options->files) {
        try {
            const std::unique_ptr<Driver> driver = makeDriver();
            const int result = PlayFile(file, *options, *driver);
            std::cout.flush();
            if (result != kAllWell) return result;
        } catch (const ScenarioError& error) {
            std::cerr << file << ":";
            if (error.Line() > 0) std::cerr << error.Line() << ":";
            std::cerr << " " << error.what() << "\n";
            return kError;
        } catch (const std::exception& error) {
            std::cerr << file << ": " << error.what() << "\n";
            return kError;
        }
    }
    return kAllWell;
}

}  // namespace vatro
