// SPDX-License-Identifier: MIT
//
// What may be found on a disk after the power has gone.
//
// Calls change what the system shows; only what was synced is sure to be found again. Of the rest the disk may have taken
// all, nothing, or a part: a file may have its new length and zeros, or what was on the disk before, in place of its bytes; a
// directory may have its new names and not the files' contents, or the other way round.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "power/disk_record.h"

namespace vatro {

/// Contents by path.
using DiskState = std::map<std::string, std::string>;

DiskState ReadDisk(const std::filesystem::path& directory);
void WriteDisk(const std::filesystem::path& directory, const DiskState& state);

class DiskModel {
public:
    /// All that is there has been synced.
    explicit DiskModel(const DiskState& before);
    void Do(const DiskCall& call);
    /// What may be found now.
    std::set<DiskState> AfterPowerCut() const;
    /// What the system shows now.
    DiskState Shown() const;

private:
    /// How much of what was not synced the disk has taken.
    enum class Taken { All, Half, Length, Zeros, Remains, Nothing };
    struct File {
        std::string shown;
        std::string synced;
        std::string Found(Taken taken) const;
    };
    using Names = std::map<std::string, std::size_t>;

    DiskState Found(const Names& names, Taken taken) const;
    File& Named(const std::filesystem::path& path) { return files_.at(shownNames_.at(path.string())); }

    /// Also those that have lost their name.
    std::vector<File> files_;
    Names shownNames_;
    Names syncedNames_;
};

}  // namespace vatro
