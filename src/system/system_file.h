// SPDX-License-Identifier: MIT
//
// One open file of the operating system, and the numbers of its failures.
//
// system_file_posix.cpp and system_file_windows.cpp are the two systems; the build takes one of them. Opening, removing and
// renaming give the system's error number, because their callers try again with another spelling; everything else fails as a
// RunTimeError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "errors.h"

namespace vatro {

/// The failure that stands for an error number of the system. A missing file gives FileNotFound; whether it is its
/// directory that is missing only the caller knows.
Failure FailureOf(int error);

/// Whether the error says that nothing has this name, or that nothing can have it; it may be there in another spelling.
bool IsMissing(int error);

class SystemFile {
public:
    enum class Access {
        Read,
        /// Writes from the start and keeps what is there.
        Write,
        /// Every write goes to the end. The file may be read too.
        Append,
    };

    SystemFile() = default;
    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;
    ~SystemFile();

    /// Opens the file, or creates it if it is missing and `create` says so. 0, or the error number.
    int Open(const std::filesystem::path& path, Access access, bool create);
    bool IsOpen() const { return handle_ != kNone; }
    bool IsDirectory() const;
    /// Whether both are the same file on the disk.
    bool IsSameFile(const SystemFile& other) const;

    /// The bytes read into the front of `buffer`, 0 at the end of the file.
    std::size_t Read(std::span<char> buffer);
    /// Writes all of it or fails.
    void Write(std::string_view bytes);
    std::int64_t Length();
    /// The last byte of a file that has one.
    char LastByte();
    void Truncate(std::int64_t length);
    /// What has been written is on the disk on return.
    void Sync();
    void Close() noexcept;

private:
    /// Of both systems, a file descriptor or a handle.
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t handle_ = kNone;
};

/// Removes a file, not a directory. 0, or the error number.
int RemoveFile(const std::filesystem::path& path);

/// Gives a file another name on the same volume, one that no file has. 0, or the error number.
int RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// As RenameFile, but takes the place of a file that has the name, in one step: at every moment the one or the other has it.
int RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives a file a second name on the same volume. 0, or the error number; many file systems of sticks cannot do it.
int LinkFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives `to` the owner and the rights of `from`, as far as the user may. A failure is not reported.
void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) noexcept;

/// What tells a file or directory on the disk from every other one as long as it exists.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t file = 0;
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// Nothing if the path leads nowhere.
std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path);

/// Names that were created or changed in the directory are on the disk on return.
void SyncDirectory(const std::filesystem::path& directory);

}  // namespace vatro
