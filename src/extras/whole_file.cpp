// SPDX-License-Identifier: MIT
#include "whole_file.h"

#include <memory>
#include <system_error>
#include <utility>

#include "errors.h"
#include "system_file.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

/// How often a file that cannot be read whole is read.
constexpr int kReadings = 3;
constexpr std::size_t kPiece = 1U << 18U;

/// The whole file, or what was read before a failure.
ReadResult ReadOnce(const fs::path& path) {
    SystemFile file;
    if (const int error = file.Open(path, SystemFile::Access::Read, false); error != 0) throw RunTimeError(FailureOf(error));
    ReadResult result;
    std::error_code unknown;
    const auto length = fs::file_size(path, unknown);
    if (!unknown) result.content.reserve(length);
    try {
        const auto buffer = std::make_unique_for_overwrite<char[]>(kPiece);
        while (const std::size_t count = file.Read({buffer.get(), kPiece})) result.content.append(buffer.get(), count);
        result.whole = true;
    } catch (const RunTimeError&) {
        result.whole = false;
    }
    return result;
}

}  // namespace

ReadResult ReadWhatIsThere(const fs::path& file) {
    if (IsNoFile(file)) throw RunTimeError(Failure::PathFileAccess);
    ReadResult result = ReadOnce(file);
    for (int i = 1; i < kReadings && !result.whole; ++i) result = ReadOnce(file);
    return result;
}

std::string ReadWhole(const fs::path& file) {
    ReadResult result = ReadWhatIsThere(file);
    if (!result.whole) throw RunTimeError(Failure::DiskNotReady);
    return std::move(result.content);
}

void WriteWhole(const fs::path& file, std::string_view content) {
    fs::path beside = file;
    beside += ".ny";
    SystemFile out;
    if (const int error = out.Open(beside, SystemFile::Access::Write, true); error != 0) throw RunTimeError(FailureOf(error));
    try {
        out.Truncate(0);
        out.Write(content);
        out.Sync();
        out.Close();
        CopyRights(file, beside);
        if (const int error = RenameOver(beside, file); error != 0) throw RunTimeError(FailureOf(error));
    } catch (const RunTimeError&) {
        out.Close();
        RemoveFile(beside);
        throw;
    }
    SyncDirectory(file.parent_path());
}

std::size_t SizeOf(const fs::path& file) {
    std::error_code error;
    const auto size = fs::file_size(file, error);
    return error ? 0 : static_cast<std::size_t>(size);
}

bool IsNoFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return fs::exists(status) && !fs::is_regular_file(status);
}

}  // namespace vatro
