// SPDX-License-Identifier: MIT
//
// Copies of the logs in a directory of the operators' choice, or on a floppy. Both copy the list of unknown prefixes and the
// ten logs, one by one, with a window that tells which one; a file that is not there is passed over. Each copy is on its medium
// when the next one begins.
#pragma once

#include <string>

namespace vatro {

/// Asks for the backup directory: the one in which the user picks or creates the marker file setBackup.txt, which proves that it
/// can be written to. The log directory itself is refused and leaves none set. Keeps the old one on Cancel; a marker that cannot
/// be written leaves the new one set and tells it as kept: meant so.
void SetBackupLib();

/// "&Kopi af log": the eleven files to gsBackupLib, which must be set.
void BackUpLogs();
/// "&Diskettekopi": the eleven files to drive a:.
void CopyToDiskette();

/// Copies a file of the log directory over the one in gsBackupLib (on drive a:). `stop` becomes true, after a message, if
/// the medium is missing, not ready or protected, so that no other copy can succeed. Any other failure shows its number and the
/// next file may be tried; a file that does not exist is no failure.
void TilBackup(const std::string& file, bool& stop);
void TilFloppy(const std::string& file, bool& stop);

}  // namespace vatro
