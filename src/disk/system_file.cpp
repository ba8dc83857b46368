// SPDX-License-Identifier: MIT
#include "disk/system_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace vatro {

namespace {

// The system's calls under one name. A call that a signal interrupts is made again by its caller.
#ifdef _WIN32
int SystemOpen(const std::filesystem::path& path, int flags) {
    return _wopen(path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}
auto SystemRead(int handle, char* bytes, std::size_t count) {
    return _read(handle, bytes, static_cast<unsigned>(std::min<std::size_t>(count, 1U << 30U)));
}
auto SystemWrite(int handle, const char* bytes, std::size_t count) {
    return _write(handle, bytes, static_cast<unsigned>(std::min<std::size_t>(count, 1U << 30U)));
}
auto SystemLength(int handle) {
    return _lseeki64(handle, 0, SEEK_END);
}
auto SystemLast(int handle) {
    return _lseeki64(handle, -1, SEEK_END);
}
int SystemTruncate(int handle, std::int64_t length) {
    const int error = _chsize_s(handle, length);
    errno = error;
    return error == 0 ? 0 : -1;
}
int SystemSync(int handle) {
    return _commit(handle);
}
void SystemClose(int handle) {
    _close(handle);
}
#else
int SystemOpen(const std::filesystem::path& path, int flags) {
    return open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, 0666);
}
auto SystemRead(int handle, char* bytes, std::size_t count) {
    return read(handle, bytes, count);
}
auto SystemWrite(int handle, const char* bytes, std::size_t count) {
    return write(handle, bytes, count);
}
auto SystemLength(int handle) {
    return lseek(handle, 0, SEEK_END);
}
/// To the last byte, which the next reading gives.
auto SystemLast(int handle) {
    return lseek(handle, -1, SEEK_END);
}
int SystemTruncate(int handle, std::int64_t length) {
    return ftruncate(handle, static_cast<off_t>(length));
}
int SystemSync(int handle) {
#if defined(__APPLE__)
    // There fsync stops at the drive's own memory.
    return fcntl(handle, F_FULLFSYNC);
#else
    return fdatasync(handle);
#endif
}
void SystemClose(int handle) {
    close(handle);
}
#endif

/// Repeats a call of the system while signals interrupt it.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

[[noreturn]] void Fail(int error) {
    throw RunTimeError(FailureOf(error));
}

/// Devices and some network and USB file systems cannot sync or cut a file; there is nothing more to be done there.
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
#ifdef EDQUOT
        case EDQUOT:
#endif
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

SystemFile::SystemFile(SystemFile&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, -1);
    }
    return *this;
}

SystemFile::~SystemFile() {
    Close();
}

int SystemFile::Open(const std::filesystem::path& path, Access access, bool create) {
    Close();
    int flags = O_WRONLY;
    if (access == Access::Read) flags = O_RDONLY;
    if (access == Access::Append) flags = O_RDWR | O_APPEND;
    if (create) flags |= O_CREAT;
    handle_ = Uninterrupted([&] { return SystemOpen(path, flags); });
    return handle_ < 0 ? errno : 0;
}

bool SystemFile::IsDirectory() const {
#ifdef _WIN32
    // A directory cannot be opened like a file there.
    return false;
#else
    struct stat status {};
    return fstat(handle_, &status) == 0 && S_ISDIR(status.st_mode);
#endif
}

bool SystemFile::IsSameFile(const SystemFile& other) const {
    if (!IsOpen() || !other.IsOpen()) return false;
#ifdef _WIN32
    BY_HANDLE_FILE_INFORMATION one;
    BY_HANDLE_FILE_INFORMATION two;
    const auto ask = [](int handle, BY_HANDLE_FILE_INFORMATION& answer) {
        return GetFileInformationByHandle(reinterpret_cast<HANDLE>(_get_osfhandle(handle)), &answer) != 0;
    };
    return ask(handle_, one) && ask(other.handle_, two) && one.dwVolumeSerialNumber == two.dwVolumeSerialNumber &&
           one.nFileIndexHigh == two.nFileIndexHigh && one.nFileIndexLow == two.nFileIndexLow;
#else
    struct stat one {};
    struct stat two {};
    return fstat(handle_, &one) == 0 && fstat(other.handle_, &two) == 0 && one.st_dev == two.st_dev && one.st_ino == two.st_ino;
#endif
}

std::size_t SystemFile::Read(std::span<char> buffer) {
    const auto count = Uninterrupted([&] { return SystemRead(handle_, buffer.data(), buffer.size()); });
    if (count < 0) Fail(errno);
    return static_cast<std::size_t>(count);
}

void SystemFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return SystemWrite(handle_, bytes.data(), bytes.size()); });
        if (count < 0) Fail(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::int64_t SystemFile::Length() {
    const auto length = SystemLength(handle_);
    if (length >= 0) return length;
    // A pipe or a terminal has no length.
    if (errno == ESPIPE) return 0;
    Fail(errno);
}

char SystemFile::LastByte() {
    char last = 0;
    if (SystemLast(handle_) < 0) Fail(errno);
    Read({&last, 1});
    return last;
}

void SystemFile::Truncate(std::int64_t length) {
    if (Uninterrupted([&] { return SystemTruncate(handle_, length); }) < 0 && !IsNotSupported(errno)) Fail(errno);
}

void SystemFile::Sync() {
    if (Uninterrupted([&] { return SystemSync(handle_); }) < 0 && !IsNotSupported(errno)) Fail(errno);
}

void SystemFile::Close() noexcept {
    if (!IsOpen()) return;
    SystemClose(handle_);
    handle_ = -1;
}

int RemoveFile(const std::filesystem::path& path) {
#ifdef _WIN32
    return _wunlink(path.c_str()) == 0 ? 0 : errno;
#else
    return unlink(path.c_str()) == 0 ? 0 : errno;
#endif
}

void SyncDirectory(const std::filesystem::path& directory) {
#ifdef _WIN32
    // The system writes its directories through by itself.
    static_cast<void>(directory);
#else
    const std::filesystem::path& name = directory.empty() ? std::filesystem::path(".") : directory;
    const int handle = Uninterrupted([&] { return SystemOpen(name, O_RDONLY | O_DIRECTORY); });
    if (handle < 0) {
        // A directory that may be written but not read can be synced by nobody.
        if (errno == EACCES) return;
        Fail(errno);
    }
    const int failed = Uninterrupted([&] { return fsync(handle); }) < 0 ? errno : 0;
    SystemClose(handle);
    if (failed != 0 && !IsNotSupported(failed)) Fail(failed);
#endif
}

}  // namespace vatro
