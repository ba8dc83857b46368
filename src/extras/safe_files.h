// SPDX-License-Identifier: MIT
//
// The files of the desktop program: as on any disk, and nothing that was ever in a log is lost.
//
// - A rewritten log takes the place of the old one in one step, and the old one goes into the history first.
// - What the program has not seen of a log, it does not drop: if the file is another one than the list shows, the history keeps it
//   whole and the operator is told.
// - The damaged end of a log, as a power cut leaves it, is not shown to the program.
// - A log directory that has gone, or has become another one (a stick that was pulled), is never written to: the write fails with 76.
// - The log directory is locked against other copies of the program, and looked at for damage before it is first read.
// - A pipe, device or directory in place of a file is a failed opening, not a wait.
// - A file that a handler has left open is closed when the handler is over.
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
#include "history.h"
#include "log_text.h"
#include "names.h"
#include "platform.h"
#include "system_file.h"

namespace vatro {

class SafeFiles : public Files {
public:
    struct Surroundings {
        std::function<std::filesystem::path(std::string_view)> toPath = NativePath;
        /// The user's directory for what programs keep.
        std::filesystem::path state = StateDirectory();
        /// Local time.
        std::function<DateTime()> now;
        /// Tells that another copy of the program has a directory that the operator has chosen.
        std::function<void()> tellTaken = [] {};
        /// Whether to go on in a directory whose holder is silent.
        std::function<bool()> askSilent = [] { return false; };
        /// A directory has been won and not been read yet.
        std::function<void(const std::filesystem::path&)> directoryWon = [](const std::filesystem::path&) {};
        DirectoryLock::Options lock{};
    };

    /// `disk` must outlive this.
    SafeFiles(Files& disk, Surroundings surroundings);

    /// Takes the log directory that the settings name, at the start; empty: none is known yet. False if another copy has it. A
    /// directory that is missing, or may only be read, is no hindrance.
    bool TakeDirectory(std::string_view directory);
    /// The history of the logs in a directory.
    History HistoryOf(const std::filesystem::path& directory) const;

    /// To be called when no handler runs any more: closes what they have left open.
    void CloseLeftovers() noexcept;
    /// What the operator has to be told, once each, in the order in which it happened.
    std::vector<std::string> TakeNotices();
    /// The operator knows of the damaged end of this log.
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
    /// The content of a log as this program last read or left it.
    struct Known {
        std::size_t size = 0;
        std::size_t hash = 0;
        bool endsALine = true;
    };
    /// What is open under a number, beside the number's file on the disk.
    struct Slot {
        std::filesystem::path path;
        FileMode mode = FileMode::Input;
        /// Of a log that is read: its content, of which the lines are handed out.
        std::optional<std::string> content;
        LogText text;
        std::size_t next = 0;
        bool whole = true;
        /// Of a log that is appended to.
        std::size_t sizeBefore = 0;
        std::string appended;
    };
    struct Place {
        std::filesystem::path directory;
        /// Nothing if it was missing.
        std::optional<FileIdentity> identity;
    };

    /// What the operator is told of, once for each file or directory.
    enum class Matter { Damage, Inside, Unseen, Room, Lock };

    Slot* SlotOf(int number);
    std::optional<std::filesystem::path> PathTo(std::string_view path) const;
    void OpenLogToRead(int number, std::string_view path, const std::filesystem::path& file);
    void OpenToAppend(int number, std::string_view path, const std::filesystem::path& file);
    void OpenToWrite(int number, std::string_view path, const std::filesystem::path& file);
    void ChooseDirectory(int number, std::string_view path, const std::filesystem::path& marker);
    bool Lock(DirectoryLock& lock, const std::filesystem::path& directory) const;
    void CheckPlace(const std::filesystem::path& file) const;
    void SetAside(const std::filesystem::path& copy);
    void CutDamagedEnd(const std::filesystem::path& log);
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
    /// The damaged end of a log that was not shown: where it begins, and what it is.
    struct DamagedEnd {
        std::size_t from = 0;
        std::string bytes;
    };
    std::map<std::filesystem::path, DamagedEnd> damaged_;
    std::set<std::pair<Matter, std::filesystem::path>> told_;
    std::vector<std::string> notices_;
};

/// Whether a file of this name, case aside, is a log: "FD", band, mode, ".txt".
bool IsLogName(const std::filesystem::path& file);

}  // namespace vatro
