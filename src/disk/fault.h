// SPDX-License-Identifier: MIT
//
// Files that fail on demand, to test what a full disk, a missing diskette or a protected file does to the program.
//
// Paths are compared regardless of case and of the kind of separator. A bare file name also matches that file in the current
// directory. A step that fails does not touch the disk. Printed text is passed on only at Close, so that a failing Close can
// withhold it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform.h"

namespace vatro {

/// Passes everything on to other files, except for the steps that are told to fail.
class FaultyFiles : public Files {
public:
    enum class Step { Open, Write, Close, Delete, Rename, Copy };

    /// `files` must outlive this object.
    explicit FaultyFiles(Files& files) : files_(files) {}

    /// From now on, operations on `path` or on a file below it fail with this number: the given step or, without a step, every Open
    /// and Copy. Number 0 cancels this for the step or, without a step, entirely. The most recent call takes precedence.
    void Fail(std::string_view path, int number, std::optional<Step> step = std::nullopt);

    /// Closes both numbers and discards what was printed since they were opened, as a power failure does.
    void Abandon();

    void Open(int number, std::string_view path, FileMode mode) override;
    std::string LineInput(int number) override { return files_.LineInput(number); }
    bool EndOfFile(int number) override { return files_.EndOfFile(number); }
    void PrintLine(int number, std::string_view text) override;
    void Print(int number, std::string_view text) override;
    void Close(int number) override;
    void Delete(std::string_view path) override;
    void Rename(std::string_view from, std::string_view to) override;
    /// A missing source fails with 53 before any other check.
    void Copy(std::string_view from, std::string_view to) override;
    std::string CurrentDirectory() override { return files_.CurrentDirectory(); }
    char Separator() const override { return files_.Separator(); }

private:
    /// A normalised path: as spelled and, for a bare name, also within the current directory.
    struct Place {
        std::string asSpelled;
        std::string inDirectory;
        friend bool operator==(const Place&, const Place&) = default;
    };
    struct Fault {
        Place place;
        int number = 0;
        std::optional<Step> step;
    };
    struct Slot {
        bool open = false;
        std::string path;
        std::string unwritten;
    };

    /// The number's slot, or null if the number is not open.
    Slot* OpenSlot(int number);
    Place PlaceOf(std::string_view path);
    void Take(int number, std::string_view text);
    void FailIfTold(std::string_view path, Step step);
    bool IsMissing(std::string_view path);

    Files& files_;
    std::vector<Fault> faults_;
    std::array<Slot, 2> slots_;
};

}  // namespace vatro
