// SPDX-License-Identifier: MIT
//
// The settings of a scenario's world: kept in memory, and also in a file if the world is kept.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform.h"

namespace vatro {

class SettingsStore : public Settings {
public:
    /// Reads the file, if one is given. Each line has a section, a key and a text, separated by tabs.
    explicit SettingsStore(std::optional<std::filesystem::path> file = std::nullopt);

    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

private:
    void Save() const;

    std::optional<std::filesystem::path> file_;
    /// Indexed by section and key, both in upper case.
    std::map<std::pair<std::string, std::string>, std::string> texts_;
};

}  // namespace vatro
