// SPDX-License-Identifier: MIT
#include "system_file.h"

#include <windows.h>

#include <algorithm>

namespace vatro {

namespace {

/// Other programs may read and write an open file, as on other systems, but not rename or delete it.
constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE;

HANDLE Handle(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

int LastError() {
    return static_cast<int>(GetLastError());
}

[[noreturn]] void FailWithLastError() {
    throw RunTimeError(FailureOf(LastError()));
}

/// Whether the operation is not supported, in which case the error is ignored: devices and some network and USB file systems cannot
/// sync or truncate a file.
bool IsNotSupported(int error) {
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_PARAMETER;
}

/// Windows reports a directory with the same error as a protected file; this tells them apart.
int ToldOfDirectory(int error, const std::filesystem::path& path) {
    if (error != ERROR_ACCESS_DENIED) return error;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isDirectory = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isDirectory ? ERROR_DIRECTORY : error;
}

/// The length of one read or write is limited to 32 bits.
DWORD Piece(std::size_t length) {
    return static_cast<DWORD>(std::min<std::size_t>(length, 1U << 30U));
}

}  // namespace

Failure FailureOf(int error) {
    switch (error) {
        case ERROR_INVALID_NAME:
            return Failure::BadFileNumber;
        case ERROR_FILE_NOT_FOUND:
            return Failure::FileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return Failure::PathNotFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return Failure::PermissionDenied;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_FILE_TOO_LARGE:
            return Failure::DiskFull;
        case ERROR_NOT_READY:
        case ERROR_NO_MEDIA_IN_DRIVE:
        case ERROR_BAD_UNIT:
        case ERROR_CRC:
        case ERROR_SECTOR_NOT_FOUND:
        case ERROR_WRITE_FAULT:
        case ERROR_READ_FAULT:
        case ERROR_GEN_FAILURE:
        case ERROR_IO_DEVICE:
        case ERROR_DEV_NOT_EXIST:
        case ERROR_DEVICE_NOT_CONNECTED:
        case ERROR_UNRECOGNIZED_VOLUME:
            return Failure::DiskNotReady;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return Failure::FileExists;
        default:
            return Failure::PathFileAccess;
    }
}

bool IsMissing(int error) {
    // A "?" in a name is invalid on Windows, but may stand for a character outside the code page.
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
}

int SystemFile::Open(const std::filesystem::path& path, Access access, bool create) {
    Close();
    const DWORD rights = access == Access::Read    ? GENERIC_READ
                         : access == Access::Write ? GENERIC_WRITE
                                                   : FILE_APPEND_DATA | FILE_READ_DATA | SYNCHRONIZE;
    const DWORD missing = create ? OPEN_ALWAYS : OPEN_EXISTING;
    handle_ = reinterpret_cast<std::intptr_t>(
        CreateFileW(path.c_str(), rights | FILE_READ_ATTRIBUTES, kSharing, nullptr, missing, FILE_ATTRIBUTE_NORMAL, nullptr));
    return IsOpen() ? 0 : ToldOfDirectory(LastError(), path);
}

bool SystemFile::IsDirectory() const {
    // Open already refuses directories.
    return false;
}

bool SystemFile::IsSameFile(const SystemFile& other) const {
    if (!IsOpen() || !other.IsOpen()) return false;
    BY_HANDLE_FILE_INFORMATION one;
    BY_HANDLE_FILE_INFORMATION two;
    return GetFileInformationByHandle(Handle(handle_), &one) != 0 && GetFileInformationByHandle(Handle(other.handle_), &two) != 0 &&
           one.dwVolumeSerialNumber == two.dwVolumeSerialNumber && one.nFileIndexHigh == two.nFileIndexHigh &&
           one.nFileIndexLow == two.nFileIndexLow;
}

std::size_t SystemFile::Read(std::span<char> buffer) {
    DWORD count = 0;
    if (ReadFile(Handle(handle_), buffer.data(), Piece(buffer.size()), &count, nullptr) == 0) FailWithLastError();
    return count;
}

void SystemFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD count = 0;
        if (WriteFile(Handle(handle_), bytes.data(), Piece(bytes.size()), &count, nullptr) == 0) FailWithLastError();
        bytes.remove_prefix(count);
    }
}

std::int64_t SystemFile::Length() {
    // A device or pipe has no length.
    if (GetFileType(Handle(handle_)) != FILE_TYPE_DISK) return 0;
    LARGE_INTEGER length;
    if (GetFileSizeEx(Handle(handle_), &length) == 0) FailWithLastError();
    return length.QuadPart;
}

char SystemFile::LastByte() {
    char last = 0;
    LARGE_INTEGER back;
    back.QuadPart = -1;
    if (SetFilePointerEx(Handle(handle_), back, nullptr, FILE_END) == 0) FailWithLastError();
    Read({&last, 1});
    return last;
}

void SystemFile::Truncate(std::int64_t length) {
    // A handle with only the right to append cannot truncate, so reopen the file for writing.
    SystemFile cutting;
    cutting.handle_ = reinterpret_cast<std::intptr_t>(ReOpenFile(Handle(handle_), GENERIC_WRITE, kSharing, 0));
    LARGE_INTEGER end;
    end.QuadPart = length;
    if (cutting.IsOpen() && SetFilePointerEx(Handle(cutting.handle_), end, nullptr, FILE_BEGIN) != 0 &&
        SetEndOfFile(Handle(cutting.handle_)) != 0)
        return;
    if (!IsNotSupported(LastError())) FailWithLastError();
}

void SystemFile::Sync() {
    if (FlushFileBuffers(Handle(handle_)) == 0 && !IsNotSupported(LastError())) FailWithLastError();
}

void SystemFile::Close() noexcept {
    if (!IsOpen()) return;
    CloseHandle(Handle(handle_));
    handle_ = kNone;
}

int RemoveFile(const std::filesystem::path& path) {
    return DeleteFileW(path.c_str()) != 0 ? 0 : ToldOfDirectory(LastError(), path);
}

int RenameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0 ? 0 : LastError();
}

int RenameOver(const std::filesystem::path& from, const std::filesystem::path& to) {
    // ReplaceFile keeps the owner and permissions of the replaced file, but fails if there is no file to replace.
    constexpr DWORD kKeepContent = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    if (GetFileAttributesW(to.c_str()) != INVALID_FILE_ATTRIBUTES &&
        ReplaceFileW(to.c_str(), from.c_str(), nullptr, kKeepContent, nullptr, nullptr) != 0)
        return 0;
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0 ? 0 : LastError();
}

int LinkFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    return CreateHardLinkW(to.c_str(), from.c_str(), nullptr) != 0 ? 0 : LastError();
}

void CopyRights(const std::filesystem::path&, const std::filesystem::path&) noexcept {
    // Nothing to do: RenameOver keeps the permissions.
}

std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path) {
    const std::filesystem::path& named = path.empty() ? std::filesystem::path(".") : path;
    HANDLE handle = CreateFileW(named.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION information;
    const bool told = GetFileInformationByHandle(handle, &information) != 0;
    CloseHandle(handle);
    if (!told) return std::nullopt;
    return FileIdentity{information.dwVolumeSerialNumber,
                        (static_cast<std::uint64_t>(information.nFileIndexHigh) << 32U) | information.nFileIndexLow};
}

void SyncDirectory(const std::filesystem::path&) {
    // Nothing to do: a new name is flushed together with its synced file, and renaming writes through.
}

}  // namespace vatro
