// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "lock_file.h"

#ifndef F_OFD_SETLK
#include <sys/file.h>
#endif

namespace vatro {

namespace {

constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY;

/// Opens the file for locking, for writing if permitted; `writable` tells which. Returns -1 and sets errno on failure.
int OpenToLock(const std::filesystem::path& file, bool& writable) {
    writable = true;
    // Open an existing file without O_CREAT: in a directory like /tmp the system refuses O_CREAT on a file that belongs to another
    // user.
    int handle = open(file.c_str(), O_RDWR | kFlags);
    if (handle < 0 && errno == ENOENT) {
        handle = open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | kFlags, 0666);
        // Allow other users to lock the file too, regardless of this user's umask.
        if (handle >= 0 && fchmod(handle, 0666) != 0) errno = 0;
        if (handle < 0 && errno == EEXIST) handle = open(file.c_str(), O_RDWR | kFlags);
    }
    if (handle < 0 && (errno == EACCES || errno == EPERM || errno == EROFS)) {
        writable = false;
        handle = open(file.c_str(), O_RDONLY | kFlags);
    }
    return handle;
}

int Lock(int handle, bool writable) {
#ifdef F_OFD_SETLK
    struct flock lock {};
    // A read lock still conflicts with another copy's write lock.
    lock.l_type = static_cast<short>(writable ? F_WRLCK : F_RDLCK);
    lock.l_whence = SEEK_SET;
    return fcntl(handle, F_OFD_SETLK, &lock);
#else
    return flock(handle, LOCK_NB | (writable ? LOCK_EX : LOCK_SH));
#endif
}

}  // namespace

LockResult LockFile::Acquire(const std::filesystem::path& file) {
    Release();
    bool writable = false;
    const int handle = OpenToLock(file, writable);
    if (handle < 0) return LockResult::Unavailable;
    struct stat status {};
    if (fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(handle);
        return LockResult::Unavailable;
    }
    if (Lock(handle, writable) == 0) {
        handle_ = handle;
        return LockResult::Won;
    }
    const int error = errno;
    close(handle);
    return error == EAGAIN || error == EACCES || error == EWOULDBLOCK ? LockResult::Taken : LockResult::NotSupported;
}

void LockFile::Release() noexcept {
    if (handle_ != kNone) close(static_cast<int>(handle_));
    handle_ = kNone;
}

}  // namespace vatro
