// SPDX-License-Identifier: MIT
//
// The settings, stored in a file on the disk.
//
// Each write, or each batch, creates a new file beside the old one, syncs it and renames it over the old one, so a power cut leaves
// either the old values or the new ones. Values that the program has not changed are kept as they are in the file, even if
// something else has edited them in the meantime. Values that could not be written are kept in memory and retried with the next
// write.
#pragma once

#include <filesystem>
#include <vector>

#include "ini_text.h"
#include "platform.h"

namespace vatro {

class DiskSettings : public Settings {
public:
    /// Neither the file nor its directory needs to exist; both are created by the first write.
    explicit DiskSettings(std::filesystem::path file);

    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    void BeginBatch() override { ++batches_; }
    void EndBatch() override;

    /// Writes all pending changes to disk, even inside a batch. A failure is not reported; see Loss.
    void Flush() noexcept;
    /// A message for the user about settings that could not be written, or nothing if all have been.
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
    /// The text last read or written, plus all changes since then.
    IniText text_;
    /// Changes that are not on disk yet.
    std::vector<Change> changes_;
    int batches_ = 0;
};

}  // namespace vatro
