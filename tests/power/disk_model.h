// SPDX-License-Identifier: MIT
//
// The states in which a disk may be found after a power cut.
//
// Calls change what the system shows, but only synced data are certain to be found again. The disk may have written all of the
// rest, nothing, or a part: a file may have its new length with zeros or old disk contents in place of its bytes, and a
// directory may have its new names without the contents of the files, or the other way round.
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
    /// Starts with this state, all of it synced.
    explicit DiskModel(const DiskState& before);
    void Do(const DiskCall& call);
    /// The states that may be found now.
    std::set<DiskState> AfterPowerCut() const;
    /// The state that the system shows now.
    DiskState Shown() const;

private:
    /// How much of the unsynced data the disk has written.
    enum class Taken { All, Half, Length, Zeros, Remains, Nothing };
    struct File {
        std::string shown;
        std::string synced;
        std::string Found(Taken taken) const;
    };
    using Names = std::map<std::string, std::size_t>;

    DiskState Found(const Names& names, Taken taken) const;
    File& Named(const std::filesystem::path& path) { return files_.at(shownNames_.at(path.string())); }

    /// Includes files that have lost their name.
    std::vector<File> files_;
    Names shownNames_;
    Names syncedNames_;
};

}  // namespace vatro
