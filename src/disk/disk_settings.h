// SPDX-License-Identifier: MIT
//
// The settings in a file on the disk.
//
// Each writing, or each batch, makes a new file beside the old one, syncs it and gives it the name: a power cut leaves the old
// values or the new ones. Values that the program has not written stay as they are in the file, also where somebody else has
// changed them meanwhile. Values that the disk did not take are kept and tried again with the next writing.
#pragma once

#include <filesystem>
#include <vector>

#include "ini_text.h"
#include "platform.h"

namespace vatro {

class DiskSettings : public Settings {
public:
    /// The file need not be there; its directory is made with it.
    explicit DiskSettings(std::filesystem::path file);

    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    void BeginBatch() override { ++batches_; }
    void EndBatch() override;

    /// What has been written is on the disk on return, inside a batch too.
    void Flush() noexcept;
    /// What the user is to be told of settings that the disk has not taken; nothing if it has them all.
    std::optional<MessageBox> Loss() const;

private:
    struct Change {
        std::string section;
        std::string key;
        std::string value;
    };

    IniText ReadFile() const;
    void WriteFile(const IniText& text) const;

    std::filesystem::path file_;
    /// As read or written last, with all changes.
    IniText text_;
    /// Written by the program, and not on the disk yet.
    std::vector<Change> changes_;
    int batches_ = 0;
};

}  // namespace vatro
