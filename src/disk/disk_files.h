// SPDX-License-Identifier: MIT
//
// The program's files on a real disk.
//
// What was appended is held back until Close, which writes and syncs it: a contact is on the disk, or it is not in the
// file at all. A failed append cuts the file back to its old length, so that no half a line stays behind; where a power cut
// has left one, the next append begins a line of its own behind it. Any other output is written in pieces, so that a long one
// takes little memory, and synced by Close; one that fails leaves what has been written. The file number is free after Close
// in every case.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "line_reader.h"
#include "names.h"
#include "platform.h"
#include "system_file.h"

namespace vatro {

/// Turns a path of the program into one of the file system. It may fail with a RunTimeError.
using PathMap = std::function<std::filesystem::path(std::string_view)>;

inline constexpr char kNativeSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

class DiskFiles : public Files {
public:
    /// Without a `currentDirectory` the one of the process is reported.
    explicit DiskFiles(PathMap toPath = NativePath, char separator = kNativeSeparator,
                       std::optional<std::string> currentDirectory = std::nullopt);
    /// Closes what is open; a failure is not told.
    ~DiskFiles() override;
    DiskFiles(const DiskFiles&) = delete;
    DiskFiles& operator=(const DiskFiles&) = delete;

    /// Fails with 55 also if the file is open under the other number, unless both read it.
    void Open(int number, std::string_view path, FileMode mode) override;
    std::string LineInput(int number) override;
    /// True for a file that is open for writing.
    bool EndOfFile(int number) override;
    void PrintLine(int number, std::string_view text) override;
    void Print(int number, std::string_view text) override;
    void Close(int number) override;
    void Delete(std::string_view path) override;
    void Rename(std::string_view from, std::string_view to) override;
    /// Fails with 53 if the source is missing, whatever the target, and with 70 if both are the same file. A copy that
    /// fails half-way stays as it is.
    void Copy(std::string_view from, std::string_view to) override;
    std::string CurrentDirectory() override;
    char Separator() const override { return separator_; }

private:
    struct Slot {
        SystemFile file;
        FileMode mode = FileMode::Input;
        LineReader reader;
        std::string unwritten;
        /// Of an append: where the file ended before it.
        std::int64_t oldLength = 0;
        /// The directory in which opening has created the file.
        std::optional<std::filesystem::path> newIn;
    };

    Slot& SlotOf(int number);
    Slot& OpenSlot(int number);
    Slot& SlotToPrint(int number);
    static void WritePiece(Slot& slot);
    std::filesystem::path ToPath(std::string_view path) const;
    static void Save(Slot& slot);

    PathMap toPath_;
    char separator_;
    std::optional<std::string> currentDirectory_;
    std::array<Slot, 2> slots_;
};

}  // namespace vatro
