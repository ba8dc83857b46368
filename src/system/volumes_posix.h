// SPDX-License-Identifier: MIT
//
// Removable volumes, on systems that mount them in directories.
#pragma once

#include <filesystem>
#include <optional>
#include <span>

namespace vatro {

/// The first volume, by name, that is mounted in one of these directories; nothing if there is none.
std::optional<std::filesystem::path> FirstVolume(std::span<const std::filesystem::path> directories);

/// The first volume that is mounted for the user; nothing if there is none.
std::optional<std::filesystem::path> FirstVolumeOfUser();

}  // namespace vatro
