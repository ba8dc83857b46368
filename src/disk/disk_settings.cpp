// SPDX-License-Identifier: MIT
#include "disk_settings.h"

#include <algorithm>
#include <array>
#include <utility>

#include "codepage.h"
#include "names.h"
#include "system_file.h"

namespace vatro {

using namespace literals;

namespace {

/// The file that `path` refers to, following links.
std::filesystem::path BehindLinks(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? path : real;
}

void Check(int error) {
    if (error != 0) throw RunTimeError(FailureOf(error));
}

}  // namespace

DiskSettings::DiskSettings(std::filesystem::path file) : file_(std::move(file)) {
    try {
        text_ = ReadFile();
    } catch (const RunTimeError&) {
        // Start without settings. As long as the file cannot be read, it is not overwritten.
    }
}

std::optional<std::string> DiskSettings::Read(std::string_view section, std::string_view key) {
    return text_.Value(section, key);
}

void DiskSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    text_.SetValue(section, key, text);
    changes_.push_back({std::string(section), std::string(key), std::string(text)});
    if (batches_ == 0) Flush();
}

void DiskSettings::EndBatch() {
    if (--batches_ == 0) Flush();
}

void DiskSettings::Flush() noexcept {
    if (changes_.empty()) return;
    try {
        IniText text = ReadFile();
        const std::string before = text.Text();
        for (const Change& change : changes_) text.SetValue(change.section, change.key, change.value);
        if (text.Text() != before) WriteFile(text);
        text_ = std::move(text);
        changes_.clear();
    } catch (const std::exception&) {
        // The changes stay pending, and Loss reports them.
    }
}

IniText DiskSettings::ReadFile() const {
    SystemFile file;
    if (const int error = file.Open(file_, SystemFile::Access::Read, false); error != 0) {
        if (IsMissing(error)) return {};
        Check(error);
    }
    std::string text;
    std::array<char, 4096> piece;
    while (const std::size_t length = file.Read(piece)) text.append(piece.data(), length);
    return IniText(text);
}

void DiskSettings::WriteFile(const IniText& text) const {
    const std::filesystem::path old = BehindLinks(file_);
    std::filesystem::path made = old;
    made += ".new";
    std::error_code error;
    const std::filesystem::path directory = old.parent_path();
    if (std::filesystem::create_directories(directory, error)) SyncDirectory(directory.parent_path());
    SystemFile file;
    Check(file.Open(made, SystemFile::Access::Write, true));
    // An interrupted write may have left such a file.
    file.Truncate(0);
    file.Write(text.Text());
    CopyRights(old, made);
    file.Sync();
    file.Close();
    Check(RenameOver(made, old));
    SyncDirectory(directory);
}

std::optional<MessageBox> DiskSettings::Loss() const {
    if (changes_.empty()) return std::nullopt;
    MessageBox box;
    box.text = "Indstillingerne kunne ikke gemmes i\n\n";
    box.text += NativeText(file_);
    box.text += "\n\nNæste gang er de, som de var før. Loggene er gemt."_t;
    box.icon = Icon::Exclamation;
    return box;
}

}  // namespace vatro
