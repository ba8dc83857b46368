// SPDX-License-Identifier: MIT
#include "disk_files.h"

#include <system_error>
#include <utility>
#include <vector>

#include "lines.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kCopyBufferSize = 65'536;
constexpr std::size_t kPieceSize = 32'768;

bool EndsALine(char c) {
    return c == '\r' || c == '\n';
}

[[noreturn]] void Fail(Failure failure) {
    throw RunTimeError(failure);
}

/// Opens the file, ignoring case in its path. A missing file is created unless it is opened for reading. Returns the directory in
/// which the file has been created, if it has.
std::optional<fs::path> OpenPath(SystemFile& file, const fs::path& spelled, SystemFile::Access access) {
    // Search the directories for another spelling only if the path does not work as given.
    int error = file.Open(spelled, access, false);
    if (error == 0) return std::nullopt;
    if (!IsMissing(error)) Fail(FailureOf(error));
    const FoundPath found = FindPath(spelled);
    if (!found.directoryExists) Fail(Failure::PathNotFound);
    const bool read = access == SystemFile::Access::Read;
    if (read && !found.exists) Fail(Failure::FileNotFound);
    error = file.Open(found.path, access, !read);
    if (error != 0) Fail(FailureOf(error));
    if (found.exists) return std::nullopt;
    return found.path.parent_path();
}

/// Finds the existing file for a path. Fails with 76 if its directory is missing, and with 53 if the file is.
fs::path ExistingPath(const fs::path& spelled) {
    FoundPath found = FindPath(spelled);
    if (!found.directoryExists) Fail(Failure::PathNotFound);
    if (!found.exists) Fail(Failure::FileNotFound);
    return std::move(found.path);
}

SystemFile::Access AccessFor(FileMode mode) {
    switch (mode) {
        case FileMode::Output:
            return SystemFile::Access::Write;
        case FileMode::Append:
            return SystemFile::Access::Append;
        case FileMode::Input:
            break;
    }
    return SystemFile::Access::Read;
}

}  // namespace

DiskFiles::DiskFiles(PathMap toPath, char separator, std::optional<std::string> currentDirectory)
    : toPath_(std::move(toPath)), separator_(separator), currentDirectory_(std::move(currentDirectory)) {}

DiskFiles::~DiskFiles() {
    for (const int number : {1, 2}) {
        try {
            Close(number);
        } catch (const RunTimeError&) {
            // The failure cannot be reported from a destructor.
            continue;
        }
    }
}

void DiskFiles::Open(int number, std::string_view path, FileMode mode) {
    Slot& slot = SlotOf(number);
    if (slot.file.IsOpen()) Fail(Failure::FileAlreadyOpen);
    SystemFile file;
    auto newIn = OpenPath(file, ToPath(path), AccessFor(mode));
    if (mode == FileMode::Input && file.IsDirectory()) Fail(Failure::PathFileAccess);
    for (const Slot& other : slots_) {
        const bool bothRead = mode == FileMode::Input && other.mode == FileMode::Input;
        if (!bothRead && file.IsSameFile(other.file)) Fail(Failure::FileAlreadyOpen);
    }
    if (mode == FileMode::Output) file.Truncate(0);
    if (mode == FileMode::Append) slot.oldLength = file.Length();
    slot.file = std::move(file);
    slot.mode = mode;
    slot.newIn = std::move(newIn);
    slot.unwritten.clear();
    if (mode == FileMode::Input) slot.reader.Start(slot.file);
}

std::string DiskFiles::LineInput(int number) {
    Slot& slot = OpenSlot(number);
    if (slot.mode != FileMode::Input) Fail(Failure::BadFileMode);
    if (slot.reader.AtEnd()) Fail(Failure::InputPastEnd);
    return slot.reader.Next();
}

bool DiskFiles::EndOfFile(int number) {
    Slot& slot = OpenSlot(number);
    return slot.mode != FileMode::Input || slot.reader.AtEnd();
}

void DiskFiles::PrintLine(int number, std::string_view text) {
    Slot& slot = SlotToPrint(number);
    slot.unwritten.append(text).append(kLineEnd);
    WritePiece(slot);
}

void DiskFiles::Print(int number, std::string_view text) {
    Slot& slot = SlotToPrint(number);
    slot.unwritten.append(text);
    WritePiece(slot);
}

void DiskFiles::WritePiece(Slot& slot) {
    if (slot.mode != FileMode::Output || slot.unwritten.size() < kPieceSize) return;
    slot.file.Write(slot.unwritten);
    slot.unwritten.clear();
}

void DiskFiles::Close(int number) {
    if (number != 1 && number != 2) return;
    Slot& slot = SlotOf(number);
    if (!slot.file.IsOpen()) return;
    try {
        if (slot.mode != FileMode::Input) Save(slot);
    } catch (const RunTimeError&) {
        slot.file.Close();
        throw;
    }
    slot.file.Close();
}

void DiskFiles::Save(Slot& slot) {
    try {
        if (slot.mode == FileMode::Append && slot.oldLength > 0 && !slot.unwritten.empty() && !EndsALine(slot.file.LastByte()))
            slot.unwritten.insert(0, kLineEnd);
        slot.file.Write(slot.unwritten);
        slot.file.Sync();
        if (slot.newIn) SyncDirectory(*slot.newIn);
    } catch (const RunTimeError&) {
        if (slot.mode == FileMode::Append) {
            try {
                slot.file.Truncate(slot.oldLength);
                slot.file.Sync();
            } catch (const RunTimeError&) {
                // The first failure is the one that is reported.
            }
        }
        throw;
    }
}

void DiskFiles::Delete(std::string_view path) {
    const fs::path spelled = ToPath(path);
    int error = RemoveFile(spelled);
    if (IsMissing(error)) error = RemoveFile(ExistingPath(spelled));
    if (error != 0) Fail(FailureOf(error));
}

void DiskFiles::Rename(std::string_view from, std::string_view to) {
    const fs::path source = ExistingPath(ToPath(from));
    const fs::path spelled = ToPath(to);
    FoundPath target = FindPath(spelled);
    if (!target.directoryExists) Fail(Failure::PathNotFound);
    if (target.exists) {
        // Renaming a file to another spelling of its own name is allowed.
        const fs::path respelled = target.path.parent_path() / spelled.filename();
        if (target.path != source || respelled == source) Fail(Failure::FileExists);
        target.path = respelled;
    }
    const int error = RenameFile(source, target.path);
    if (error != 0) Fail(FailureOf(error));
    SyncDirectory(target.path.parent_path());
    if (source.parent_path() != target.path.parent_path()) SyncDirectory(source.parent_path());
}

void DiskFiles::Copy(std::string_view from, std::string_view to) {
    SystemFile source;
    try {
        OpenPath(source, ToPath(from), SystemFile::Access::Read);
    } catch (const RunTimeError& failure) {
        // A missing directory or drive also means that the source is missing.
        if (failure.Which() == Failure::PathNotFound) Fail(Failure::FileNotFound);
        throw;
    }
    if (source.IsDirectory()) Fail(Failure::PathFileAccess);
    SystemFile target;
    const auto newIn = OpenPath(target, ToPath(to), SystemFile::Access::Write);
    if (target.IsSameFile(source)) Fail(Failure::PermissionDenied);
    for (const Slot& slot : slots_)
        if (target.IsSameFile(slot.file)) Fail(Failure::FileAlreadyOpen);
    target.Truncate(0);
    std::vector<char> buffer(kCopyBufferSize);
    while (const std::size_t count = source.Read(buffer)) target.Write({buffer.data(), count});
    target.Sync();
    if (newIn) SyncDirectory(*newIn);
}

std::string DiskFiles::CurrentDirectory() {
    if (currentDirectory_) return *currentDirectory_;
    std::error_code error;
    const fs::path directory = fs::current_path(error);
    if (error) Fail(Failure::PathNotFound);
    std::string text = NativeText(directory);
    if (text.ends_with(kNativeSeparator)) text.pop_back();
    return text;
}

DiskFiles::Slot& DiskFiles::SlotOf(int number) {
    if (number != 1 && number != 2) Fail(Failure::BadFileNumber);
    return slots_[static_cast<std::size_t>(number - 1)];
}

DiskFiles::Slot& DiskFiles::OpenSlot(int number) {
    Slot& slot = SlotOf(number);
    if (!slot.file.IsOpen()) Fail(Failure::BadFileNumber);
    return slot;
}

DiskFiles::Slot& DiskFiles::SlotToPrint(int number) {
    Slot& slot = OpenSlot(number);
    if (slot.mode == FileMode::Input) Fail(Failure::BadFileMode);
    return slot;
}

fs::path DiskFiles::ToPath(std::string_view path) const {
    if (path.empty() || path.find('\0') != std::string_view::npos) Fail(Failure::BadFileNumber);
    return toPath_(path);
}

}  // namespace vatro
