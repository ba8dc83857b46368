// SPDX-License-Identifier: MIT
#include <windows.h>

#include "lock_file.h"

namespace vatro {

LockResult LockFile::Acquire(const std::filesystem::path& file) {
    Release();
    HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return LockResult::Unavailable;
    OVERLAPPED place{};
    if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0) {
        handle_ = reinterpret_cast<std::intptr_t>(handle);
        return LockResult::Won;
    }
    const DWORD error = GetLastError();
    CloseHandle(handle);
    const bool taken = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING || error == ERROR_SHARING_VIOLATION;
    return taken ? LockResult::Taken : LockResult::NotSupported;
}

void LockFile::Release() noexcept {
    if (handle_ != kNone) CloseHandle(reinterpret_cast<HANDLE>(handle_));
    handle_ = kNone;
}

}  // namespace vatro
