// SPDX-License-Identifier: MIT
#include "system_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace vatro {

namespace {

int Descriptor(std::intptr_t handle) {
    return static_cast<int>(handle);
}

/// Repeats a system call while it is interrupted by signals.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

[[noreturn]] void Fail(int error) {
    throw RunTimeError(FailureOf(error));
}

/// Whether the operation is not supported, in which case the error is ignored: devices and some network and USB file systems cannot
/// sync or truncate a file.
bool IsNotSupported(int error) {
    return error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

}  // namespace

Failure FailureOf(int error) {
    switch (error) {
        case ENOENT:
            return Failure::FileNotFound;
        case ENOTDIR:
            return Failure::PathNotFound;
        case EROFS:
        case EACCES:
        case EPERM:
            return Failure::PermissionDenied;
        case ENOSPC:
        case EFBIG:
        case EDQUOT:
            return Failure::DiskFull;
        case EIO:
        case ENXIO:
        case ENODEV:
#ifdef ENOMEDIUM
        case ENOMEDIUM:
#endif
            return Failure::DiskNotReady;
        default:
            return Failure::PathFileAccess;
    }
}

bool IsMissing(int error) {
    return error == ENOENT;
}

int SystemFile::Open(const std::filesystem::path& path, Access access, bool create) {
    Close();
    int flags = O_CLOEXEC | O_NOCTTY;
    if (access == Access::Read) flags |= O_RDONLY;
    if (access == Access::Write) flags |= O_WRONLY;
    if (access == Access::Append) flags |= O_RDWR | O_APPEND;
    if (create) flags |= O_CREAT;
    handle_ = Uninterrupted([&] { return open(path.c_str(), flags, 0666); });
    return IsOpen() ? 0 : errno;
}

bool SystemFile::IsDirectory() const {
    struct stat status {};
    return fstat(Descriptor(handle_), &status) == 0 && S_ISDIR(status.st_mode);
}

bool SystemFile::IsSameFile(const SystemFile& other) const {
    if (!IsOpen() || !other.IsOpen()) return false;
    struct stat one {};
    struct stat two {};
    return fstat(Descriptor(handle_), &one) == 0 && fstat(Descriptor(other.handle_), &two) == 0 && one.st_dev == two.st_dev &&
           one.st_ino == two.st_ino;
}

std::size_t SystemFile::Read(std::span<char> buffer) {
    const auto count = Uninterrupted([&] { return read(Descriptor(handle_), buffer.data(), buffer.size()); });
    if (count < 0) Fail(errno);
    return static_cast<std::size_t>(count);
}

void SystemFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return write(Descriptor(handle_), bytes.data(), bytes.size()); });
        if (count < 0) Fail(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::int64_t SystemFile::Length() {
    const auto length = lseek(Descriptor(handle_), 0, SEEK_END);
    if (length >= 0) return length;
    // A pipe or terminal has no length.
    if (errno == ESPIPE) return 0;
    Fail(errno);
}

char SystemFile::LastByte() {
    char last = 0;
    if (lseek(Descriptor(handle_), -1, SEEK_END) < 0) Fail(errno);
    Read({&last, 1});
    return last;
}

void SystemFile::Truncate(std::int64_t length) {
    const auto cut = [&] { return ftruncate(Descriptor(handle_), static_cast<off_t>(length)); };
    if (Uninterrupted(cut) < 0 && !IsNotSupported(errno)) Fail(errno);
}

void SystemFile::Sync() {
    const auto sync = [&] {
#ifdef __APPLE__
        // On macOS, fsync stops at the drive's own cache.
        return fcntl(Descriptor(handle_), F_FULLFSYNC);
#else
        return fdatasync(Descriptor(handle_));
#endif
    };
    if (Uninterrupted(sync) < 0 && !IsNotSupported(errno)) Fail(errno);
}

void SystemFile::Close() noexcept {
    if (!IsOpen()) return;
    close(Descriptor(handle_));
    handle_ = kNone;
}

int RemoveFile(const std::filesystem::path& path) {
    return unlink(path.c_str()) == 0 ? 0 : errno;
}

int RenameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    return rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int RenameOver(const std::filesystem::path& from, const std::filesystem::path& to) {
    return RenameFile(from, to);
}

int LinkFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    // AT_SYMLINK_FOLLOW: a link to a symbolic link would follow whatever file gets the target's name later.
    return linkat(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) noexcept {
    struct stat status {};
    if (stat(from.c_str(), &status) != 0) return;
    // Only root may change the owner; the group can be set to one of the user's own groups. Set the permissions last, because a
    // change of owner clears some of them.
    if (chown(to.c_str(), status.st_uid, status.st_gid) != 0 && chown(to.c_str(), static_cast<uid_t>(-1), status.st_gid) != 0) errno = 0;
    if (chmod(to.c_str(), status.st_mode & 07777) != 0) errno = 0;
}

std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path) {
    struct stat status {};
    if (stat(path.empty() ? "." : path.c_str(), &status) != 0) return std::nullopt;
    return FileIdentity{static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

void SyncDirectory(const std::filesystem::path& directory) {
    const std::filesystem::path& name = directory.empty() ? std::filesystem::path(".") : directory;
    const int handle = Uninterrupted([&] { return open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0) {
        // A directory that is writable but not readable cannot be opened, so it cannot be synced.
        if (errno == EACCES) return;
        Fail(errno);
    }
    const int failed = Uninterrupted([&] { return fsync(handle); }) < 0 ? errno : 0;
    close(handle);
    if (failed != 0 && !IsNotSupported(failed)) Fail(failed);
}

}  // namespace vatro
