// SPDX-License-Identifier: MIT
//
// Copies the logs to a backup directory or to a floppy. Both copy the list of unknown prefixes and the ten logs one by one, with a
// window that says which file is being copied; files that do not exist are skipped. Each copy is synced to its medium before the next
// one begins.
#pragma once

#include <string>

namespace vatro {

/// Asks for the backup directory: the user picks or creates the marker file setBackup.txt in it. The file is empty and sets nothing;
/// it only proves that the directory can be written to. If the user picks the log directory, it is refused and no backup directory is
/// set. On Cancel the old directory is kept. If the marker cannot be written, the new directory is set although the message says that
/// the old one was kept. Keep this: operators know the message from the handbook, and no log is affected (docs/rules.md).
void SetBackupLib();

/// The click of "&Kopi af log": copies the eleven files to gsBackupLib, or shows a message if it is not set.
void BackUpLogs();
/// The click of "&Diskettekopi": copies the eleven files to drive a:.
void CopyToDiskette();

/// Copies a file of the log directory to gsBackupLib (TilBackup) or to drive a: (TilFloppy), replacing an earlier copy. If the medium is
/// missing, not ready or protected, shows a message and sets `stop`, since no other copy can succeed. For any other failure shows its
/// number, and the next file may be tried. Clears `stop` after a copy. A file that does not exist is not a failure.
void TilBackup(const std::string& file, bool& stop);
void TilFloppy(const std::string& file, bool& stop);

}  // namespace vatro
