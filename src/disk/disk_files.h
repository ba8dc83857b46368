// SPDX-License-Identifier: MIT
//
// The program's files on a real disk.
//
// Appended text is held back until Close, which writes and syncs it: a contact is either on disk or not in the file at all. If an
// append fails, the file is cut back to its old length, so that no partial line is left. If a power cut has left a partial line,
// the next append first ends that line. Other output is written in pieces, so that a large file needs little memory, and is synced
// by Close; if it fails, the part already written stays. The file number is free after Close in every case.
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

/// Converts a path of the program to one of the file system. May fail with a RunTimeError.
using PathMap = std::function<std::filesystem::path(std::string_view)>;

inline constexpr char kNativeSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

/// The numbered files 1 and 2 on the disk. Failures are those of Files; see there for the numbers.
class DiskFiles : public Files {
public:
    /// Without `currentDirectory`, the current directory of the process is reported.
    explicit DiskFiles(PathMap toPath = NativePath, char separator = kNativeSeparator,
                       std::optional<std::string> currentDirectory = std::nullopt);
    /// Closes open files; failures are not reported.
    ~DiskFiles() override;
    DiskFiles(const DiskFiles&) = delete;
    DiskFiles& operator=(const DiskFiles&) = delete;

    /// Also fails with 55 if the file is open under the other number, unless both only read it.
    void Open(int number, std::string_view path, FileMode mode) override;
    std::string LineInput(int number) override;
    /// True for a file that is open for writing.
    bool EndOfFile(int number) override;
    void PrintLine(int number, std::string_view text) override;
    void Print(int number, std::string_view text) override;
    void Close(int number) override;
    void Delete(std::string_view path) override;
    void Rename(std::string_view from, std::string_view to) override;
    /// Fails with 53 if the source is missing, whatever the target, and with 70 if both are the same file. If the copy fails
    /// half-way, the partial copy is left.
    void Copy(std::string_view from, std::string_view to) override;
    std::string CurrentDirectory() override;
    char Separator() const override { return separator_; }

private:
    struct Slot {
        SystemFile file;
        FileMode mode = FileMode::Input;
        LineReader reader;
        std::string unwritten;
        /// Of a file opened for Append: its length when it was opened.
        std::int64_t oldLength = 0;
        /// The directory in which Open has created the file, if it has created it.
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
