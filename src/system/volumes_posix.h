// SPDX-License-Identifier: MIT
//
// Removable volumes of a system that mounts them in directories.
#pragma once

#include <filesystem>
#include <optional>
#include <span>

namespace vatro {

/// The first volume, by name, that is mounted in one of the directories.
std::optional<std::filesystem::path> FirstVolume(std::span<const std::filesystem::path> directories);

/// The first one that is mounted for the user.
std::optional<std::filesystem::path> FirstVolumeOfUser();

}  // namespace vatro
