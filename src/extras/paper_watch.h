// SPDX-License-Identifier: MIT
//
// Finds out what became of the papers that a command has made: which files are complete, how many contacts are in them, and what was
// printed. It only watches the files that pass through it; the papers are made as without it.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform.h"

namespace vatro {

/// A print job that is over.
struct PrintJob {
    enum class State { Done, Dropped, Failed };
    State state = State::Done;
    /// The file that was written, or empty if the job went to a printer.
    std::string file;
    std::string printer;
    int pages = 0;
};

/// The result of one command.
struct PaperEnd {
    /// One line for the operator.
    std::string text;
    /// Paths of the files that are complete, as the program has named them.
    std::vector<std::string> files;
    /// Whether there is a paper, and no paper is unfinished.
    bool made = false;
};

/// Wraps the files of the program.
class PaperWatch : public Files {
public:
    /// `files` must outlive this object.
    explicit PaperWatch(Files& files) : files_(files) {}

    /// A print job has ended.
    void Printed(const PrintJob& job) { job_ = job; }
    /// Call when a command is over. Returns what has become of its papers, or nothing if it was no command that makes papers, and
    /// forgets everything about it. Every file that the command opened for writing is taken for a paper.
    std::optional<PaperEnd> TakeEnd(bool papersMade);

    void Open(int number, std::string_view path, FileMode mode) override;
    std::string LineInput(int number) override;
    bool EndOfFile(int number) override { return files_.EndOfFile(number); }
    void PrintLine(int number, std::string_view text) override;
    void Print(int number, std::string_view text) override;
    void Close(int number) override;
    void Delete(std::string_view path) override { files_.Delete(path); }
    void Rename(std::string_view from, std::string_view to) override { files_.Rename(from, to); }
    void Replace(std::string_view copy, std::string_view name) override { files_.Replace(copy, name); }
    void Copy(std::string_view from, std::string_view to) override { files_.Copy(from, to); }
    std::string CurrentDirectory() override { return files_.CurrentDirectory(); }
    char Separator() const override { return files_.Separator(); }

private:
    struct Paper {
        std::string path;
        bool complete = false;
        /// Contacts in an error list.
        int listed = 0;
    };
    /// What is open under a number: a log that is read, or a paper.
    struct Slot {
        /// The contacts read from the log so far, in contacts_.
        int* contacts = nullptr;
        std::optional<std::size_t> paper;
    };
    static constexpr std::size_t kSlots = 2;

    /// Runs a step on the files, and remembers the first failure of the command.
    template <class Step>
    auto Watched(Step step) {
        try {
            return step();
        } catch (const RunTimeError& failure) {
            if (!failure_) failure_ = failure.Which();
            throw;
        }
    }
    Paper* PaperOf(int number);
    std::string Contacts() const;
    std::string AboutFiles() const;
    std::string AboutPrint() const;
    std::string AboutUnfinished() const;

    Files& files_;
    std::array<Slot, kSlots> slots_;
    std::vector<Paper> papers_;
    /// The number of contacts in each log when it was last read, by path.
    std::map<std::string, int> contacts_;
    /// The last log that could not be opened, as in "FD10mCW.txt findes ikke".
    std::string missing_;
    std::optional<Failure> failure_;
    std::optional<PrintJob> job_;
};

}  // namespace vatro
