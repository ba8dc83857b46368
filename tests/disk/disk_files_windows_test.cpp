// SPDX-License-Identifier: MIT
//
// Files and file names that are special to Windows.
#include <gmock/gmock.h>
#include <windows.h>

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

using DiskFilesWindowsTest = DiskWorld;

TEST_F(DiskFilesWindowsTest, PathsTakeEitherSlashAndTheDirectoryIsToldWithBackslashes) {
    EXPECT_EQ(files_.Separator(), '\\');
    std::filesystem::create_directory(root_ / "log");
    WriteFile(files_, At("log\\a.txt"), FileMode::Output, "a");
    EXPECT_THAT(ReadLines(files_, At("log/a.txt")), ElementsAre("a"));
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(root_ / "log");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_THAT(directory, ::testing::EndsWith("\\log"));
    EXPECT_THAT(directory, ::testing::Not(::testing::HasSubstr("/")));
}

TEST_F(DiskFilesWindowsTest, TheRootOfADriveIsReportedWithoutItsSeparator) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path("C:\\");
    const std::string directory = files_.CurrentDirectory();
    std::filesystem::current_path(before);
    EXPECT_EQ(directory, "C:");
}

TEST_F(DiskFilesWindowsTest, ANameThatTheSystemCannotHaveIsABadName) {
    EXPECT_EQ(OpenFails(1, At("a?.txt"), FileMode::Output), 52);
    EXPECT_EQ(OpenFails(1, At("a?.txt"), FileMode::Input), 53);
}

TEST_F(DiskFilesWindowsTest, AFileThatIsProtectedIsPermissionDenied) {
    Put("a.txt", "a");
    std::filesystem::permissions(root_ / "a.txt", std::filesystem::perms::owner_read);
    if (std::ofstream(root_ / "a.txt", std::ios::app)) {
        std::filesystem::permissions(root_ / "a.txt", std::filesystem::perms::owner_all);
        GTEST_SKIP() << "under wine nothing is protected from root";
    }
    const int append = OpenFails(1, At("a.txt"), FileMode::Append);
    const int remove = NumberOf([&] { files_.Delete(At("a.txt")); });
    Put("b.txt", "b");
    const int copy = NumberOf([&] { files_.Copy(At("b.txt"), At("a.txt")); });
    std::filesystem::permissions(root_ / "a.txt", std::filesystem::perms::owner_all);
    EXPECT_EQ(append, 70);
    EXPECT_EQ(remove, 70);
    EXPECT_EQ(copy, 70);
    EXPECT_EQ(Content("a.txt"), "a");
}

TEST_F(DiskFilesWindowsTest, AFileThatAnotherProgramKeepsForItselfIsPermissionDenied) {
    Put("a.txt", "a\r\n");
    const HANDLE kept = CreateFileW((root_ / "a.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(kept, INVALID_HANDLE_VALUE);
    const int append = OpenFails(1, At("a.txt"), FileMode::Append);
    const int remove = NumberOf([&] { files_.Delete(At("a.txt")); });
    const int rename = NumberOf([&] { files_.Rename(At("a.txt"), At("b.txt")); });
    CloseHandle(kept);
    EXPECT_EQ(append, 70);
    EXPECT_EQ(remove, 70);
    EXPECT_EQ(rename, 70);
    EXPECT_EQ(Content("a.txt"), "a\r\n");
}

TEST_F(DiskFilesWindowsTest, WhileALogIsReadItsNameStays) {
    Put("a.txt", "a\r\n");
    files_.Open(1, At("a.txt"), FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files_.Delete(At("a.txt")); }), 70);
    EXPECT_EQ(files_.LineInput(1), "a");
    files_.Close(1);
    files_.Delete(At("a.txt"));
    EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(DiskFilesWindowsTest, ADriveThatIsNotThereHasNoPaths) {
    const DWORD drives = GetLogicalDrives();
    char letter = 'B';
    while (letter < 'Z' && (drives >> (letter - 'A') & 1U) != 0) ++letter;
    const std::string drive = std::string(1, letter) + ":\\";
    EXPECT_EQ(OpenFails(1, drive + "a.txt", FileMode::Output), 76);
    EXPECT_EQ(OpenFails(1, drive + "log\\a.txt", FileMode::Append), 76);
    Put("a.txt", "a");
    EXPECT_EQ(NumberOf([&] { files_.Copy(At("a.txt"), drive + "a.txt"); }), 76);
}

TEST(FailureOfWindows, MapsTheSystemsNumbers) {
    EXPECT_EQ(FailureOf(ERROR_INVALID_NAME), Failure::BadFileNumber);
    EXPECT_EQ(FailureOf(ERROR_FILE_NOT_FOUND), Failure::FileNotFound);
    for (const int error : {ERROR_PATH_NOT_FOUND, ERROR_BAD_NET_NAME}) EXPECT_EQ(FailureOf(error), Failure::PathNotFound);
    for (const int error : {ERROR_ACCESS_DENIED, ERROR_WRITE_PROTECT, ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION})
        EXPECT_EQ(FailureOf(error), Failure::PermissionDenied);
    for (const int error : {ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL}) EXPECT_EQ(FailureOf(error), Failure::DiskFull);
    for (const int error : {ERROR_NOT_READY, ERROR_NO_MEDIA_IN_DRIVE, ERROR_CRC, ERROR_IO_DEVICE, ERROR_DEVICE_NOT_CONNECTED})
        EXPECT_EQ(FailureOf(error), Failure::DiskNotReady);
    EXPECT_EQ(FailureOf(ERROR_ALREADY_EXISTS), Failure::FileExists);
    for (const int error : {ERROR_DIRECTORY, ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_SAME_DEVICE, ERROR_FILENAME_EXCED_RANGE})
        EXPECT_EQ(FailureOf(error), Failure::PathFileAccess);
}

}  // namespace
}  // namespace vatro
