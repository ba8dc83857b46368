// SPDX-License-Identifier: MIT
//
// An open file of the operating system, and the conversion of its error numbers to failures.
//
// system_file_posix.cpp and system_file_windows.cpp implement it; the build uses one of them. Opening, removing and renaming return
// the system's error number, because their callers retry with another spelling. Everything else fails with a RunTimeError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "errors.h"

namespace vatro {

/// Converts an error number of the system to a failure. A missing file gives FileNotFound; only the caller can tell whether its
/// directory is missing as well.
Failure FailureOf(int error);

/// Whether the error means that no file has this name, or that the name is not allowed. The file may exist under another spelling.
bool IsMissing(int error);

/// One open file, closed by its destructor. Reading, writing and syncing fail with a RunTimeError that FailureOf chooses.
class SystemFile {
public:
    enum class Access {
        Read,
        /// Writes from the start; the existing content is kept.
        Write,
        /// Appends every write to the end. The file can also be read.
        Append,
    };

    SystemFile() = default;
    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;
    ~SystemFile();

    /// Opens the file. If it is missing, creates it if `create` is true. Returns 0 or the error number.
    int Open(const std::filesystem::path& path, Access access, bool create);
    bool IsOpen() const { return handle_ != kNone; }
    /// Whether a directory has been opened, which only some systems allow.
    bool IsDirectory() const;
    /// Whether both are the same file on the disk.
    bool IsSameFile(const SystemFile& other) const;

    /// Reads into the front of `buffer`. Returns the number of bytes read, which is 0 at the end of the file.
    std::size_t Read(std::span<char> buffer);
    /// Writes all bytes, or fails.
    void Write(std::string_view bytes);
    /// Length in bytes; 0 for a pipe, a terminal or a device. May move the position.
    std::int64_t Length();
    /// The last byte of the file, which must not be empty.
    char LastByte();
    /// Cuts the file to `length` bytes. Does nothing on devices and file systems that cannot do this.
    void Truncate(std::int64_t length);
    /// Flushes everything written to the disk.
    void Sync();
    /// Closes the file, if one is open. A failure is not reported; call Sync before.
    void Close() noexcept;

private:
    /// A file descriptor (POSIX) or a handle (Windows).
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t handle_ = kNone;
};

/// Removes a file, but no directory. Returns 0 or the error number.
int RemoveFile(const std::filesystem::path& path);

/// Renames a file within its volume to a name that no file has. Returns 0 or the error number.
int RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Like RenameFile, but replaces an existing file of that name. The replacement is atomic: at every moment the name refers to
/// either the old file or the new one.
int RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives a file a second name on the same volume (a hard link). Returns 0 or the error number. Many file systems used on USB sticks
/// do not support it.
int LinkFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives `to` the owner and permissions of `from`, as far as the user is allowed to. A failure is not reported.
void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) noexcept;

/// Identifies a file or directory on the disk uniquely for as long as it exists.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t file = 0;
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// Returns nothing if the path does not exist.
std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path);

/// Flushes the directory, so that names created or changed in it are on disk on return.
void SyncDirectory(const std::filesystem::path& directory);

}  // namespace vatro
