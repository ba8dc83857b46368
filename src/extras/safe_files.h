// SPDX-License-Identifier: MIT
//
// The files of the desktop program: like the files on any disk, but nothing that was ever in a log is lost.
//
// - A rewritten log replaces the old one in one step, and the old one is added to the history first.
// - What the program has not seen of a log is not dropped: if the file differs from what the list shows, the history keeps the whole
//   file and the operator is told.
// - The damaged end of a log, as left by a power cut, is hidden from the program.
// - A log directory that has disappeared or been replaced by another (such as a USB stick that was pulled out) is never written to:
//   the write fails with 76.
// - The log directory is locked against other copies of the program, and checked for damage before it is first read.
// - If a pipe, device or directory stands in place of a file, opening it fails instead of blocking.
// - A file that a handler has left open is closed when the handler has ended.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "directory_lock.h"
#include "errors.h"
#include "history.h"
#include "log_text.h"
#include "names.h"
#include "platform.h"
#include "system_file.h"

namespace vatro {

/// The empty file that marks a directory as one for logs.
inline constexpr std::string_view kLogMarker = "setlog.txt";

/// Wraps the files of the disk. Used on the program's thread only.
class SafeFiles : public Files {
public:
    /// What the files need from the rest of the desktop program; tests replace it.
    struct Surroundings {
        /// Converts a path of the program to one of the file system.
        std::function<std::filesystem::path(std::string_view)> toPath = NativePath;
        /// The user's directory for program data.
        std::filesystem::path state = StateDirectory();
        /// Returns the local time.
        std::function<DateTime()> now;
        /// Tells the operator that another copy of the program is using the directory that was just chosen.
        std::function<void()> tellTaken = [] {};
        /// Asks whether to go on in a directory whose holder is silent.
        std::function<bool()> askSilent = [] { return false; };
        /// Called when a directory has been locked, before it is first read.
        std::function<void(const std::filesystem::path&)> directoryWon = [](const std::filesystem::path&) {};
        /// Called when the program has chosen a log directory: its marker file is on the disk. The directory is spelled as the program
        /// spells it, without a final separator.
        std::function<void(std::string_view directory)> directoryChosen = [](std::string_view) {};
        /// Called when a line that was appended to a log is on the disk.
        std::function<void(std::string_view line)> saved = [](std::string_view) {};
        /// Called when a log was rewritten with one line changed and is on the disk, with this line as it is now.
        std::function<void(std::string_view line)> corrected = [](std::string_view) {};
        /// Called when a file could not be written, before the caller gets the failure.
        std::function<void(const std::filesystem::path& file, Failure failure)> notSaved = [](const std::filesystem::path&, Failure) {};
        /// Called before a log is written, and when it has been written, also if that failed.
        std::function<void()> writeBegins = [] {};
        std::function<void(const std::filesystem::path& log)> writeEnded = [](const std::filesystem::path&) {};
        DirectoryLock::Options lock{};
    };

    /// `disk` must outlive this object.
    SafeFiles(Files& disk, Surroundings surroundings);

    /// At the start: takes the log directory named in the settings; an empty name means that none is known yet. Returns false if
    /// another copy has it. A missing or read-only directory counts as success.
    bool TakeDirectory(std::string_view directory);
    /// The history of the logs in a directory.
    History HistoryOf(const std::filesystem::path& directory) const;

    /// Call when no handler is running: closes the files that handlers have left open.
    void CloseLeftovers() noexcept;
    /// Messages for the operator since the last call, in the order of the events. Each message is given once.
    std::vector<std::string> TakeNotices();
    /// Call when the operator has already been told of the damaged end of this log.
    void ToldOfDamage(const std::filesystem::path& log) { told_.emplace(Matter::Damage, log); }

    void Open(int number, std::string_view path, FileMode mode) override;
    std::string LineInput(int number) override;
    bool EndOfFile(int number) override;
    void PrintLine(int number, std::string_view text) override;
    void Print(int number, std::string_view text) override;
    void Close(int number) override;
    void Delete(std::string_view path) override;
    void Rename(std::string_view from, std::string_view to) override;
    void Replace(std::string_view copy, std::string_view name) override;
    void Copy(std::string_view from, std::string_view to) override;
    std::string CurrentDirectory() override { return disk_.CurrentDirectory(); }
    char Separator() const override { return disk_.Separator(); }

private:
    /// The content of a log as this program last read or wrote it.
    struct Known {
        std::size_t size = 0;
        std::size_t hash = 0;
        bool endsALine = true;
    };
    /// What is open under a number, in addition to the file that the disk has open under it.
    struct Slot {
        std::filesystem::path path;
        FileMode mode = FileMode::Input;
        /// Of a log that is being read: its content, whose lines are handed out.
        std::optional<std::string> content;
        LogText text;
        std::size_t next = 0;
        bool whole = true;
        /// Of a log that is being appended to: its size before.
        std::size_t sizeBefore = 0;
        std::string appended;
        /// Of a marker file: the directory that it marks, as the program spells it.
        std::optional<std::string> chosen;
    };
    /// The log directory, and the identity it had when it was locked.
    struct Place {
        std::filesystem::path directory;
        /// Nothing if the directory was missing.
        std::optional<FileIdentity> identity;
    };

    /// Subjects of messages. Each is reported once for each file or directory.
    enum class Matter { Damage, Inside, Unseen, Room, Lock, Changed };

    Slot* SlotOf(int number);
    /// Runs a step of writing a file, and tells if it fails.
    template <class StepOfWriting>
    void Write(const std::filesystem::path& file, StepOfWriting step) {
        try {
            step();
        } catch (const RunTimeError& failure) {
            surroundings_.notSaved(file, failure.Which());
            throw;
        }
    }
    void Changed(const std::filesystem::path& file) const;
    std::optional<std::filesystem::path> PathTo(std::string_view path) const;
    void OpenLogToRead(int number, std::string_view path, const std::filesystem::path& file);
    void OpenToAppend(int number, std::string_view path, const std::filesystem::path& file);
    void OpenToWrite(int number, std::string_view path, const std::filesystem::path& file);
    void ChooseDirectory(int number, std::string_view path, const std::filesystem::path& marker);
    bool Lock(DirectoryLock& lock, const std::filesystem::path& directory) const;
    void CheckPlace(const std::filesystem::path& file) const;
    void ReplaceLog(const std::filesystem::path& copy, const std::filesystem::path& log);
    void SetAside(const std::filesystem::path& copy);
    void CutDamagedEnd(const std::filesystem::path& log);
    void TellOfForeignChange(const std::filesystem::path& log, std::size_t size);
    void Learn(const std::filesystem::path& log, std::string_view content);
    void LearnAppended(const Slot& slot);
    std::string KeepDamaged(const std::filesystem::path& log, std::string_view content);
    void KeepOlderCopy(const std::filesystem::path& source, const std::filesystem::path& target);
    void TellAgain(std::string text);
    void Tell(Matter matter, const std::filesystem::path& about, std::string text);

    Files& disk_;
    Surroundings surroundings_;
    std::array<std::optional<Slot>, 2> slots_;
    std::optional<Place> place_;
    std::unique_ptr<DirectoryLock> lock_;
    std::map<std::filesystem::path, Known> known_;
    /// The damaged end of a log, which was hidden from the program: where it begins, and its bytes.
    struct DamagedEnd {
        std::size_t from = 0;
        std::string bytes;
    };
    std::map<std::filesystem::path, DamagedEnd> damaged_;
    std::set<std::pair<Matter, std::filesystem::path>> told_;
    std::vector<std::string> notices_;
};

/// Whether the file name is that of a log: "FD", band, mode, ".txt", ignoring case.
bool IsLogName(const std::filesystem::path& file);

}  // namespace vatro
