// SPDX-License-Identifier: MIT
//
// The settings store of a scenario's world: in memory, and in a file as well if the world stays.
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
    /// Reads what the file holds, if one is told; each line is a section, a key and a text with tabs between.
    explicit SettingsStore(std::optional<std::filesystem::path> file = std::nullopt);

    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

private:
    void Save() const;

    std::optional<std::filesystem::path> file_;
    /// By section and key in upper case.
    std::map<std::pair<std::string, std::string>, std::string> texts_;
};

}  // namespace vatro
