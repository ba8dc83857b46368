// SPDX-License-Identifier: MIT
//
// Universal time, in which the log is kept, and the paths of the program's files.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

/// Returns gsUTC as a number of hours. Fails with 13 if it is not a number, with 6 if it exceeds 16 bits.
int UtcOffset();
/// Returns the universal time: the local clock plus gsUTC hours. Fails with 13 if gsUTC is not a number, with 6 if it exceeds 16
/// bits.
DateTime UtcNow();
/// Returns the universal time as "Hh:Nn", as the time field and the messages show it.
std::string UtcTimeText();

/// Returns the path of the file `name` in `directory`.
std::string PathIn(const std::string& directory, std::string_view name);

/// Returns the directory of a file, without a final separator. Fails with 5 if the path contains no directory.
std::string DirectoryOf(const std::string& path);

/// Asks for a directory. File dialogues cannot choose one, so the user picks or creates a file in it. Returns the path of that file,
/// which is not created yet. Fails with 32755 on Cancel.
std::string ChooseMarkerFile(std::string_view name, std::string_view title);

}  // namespace vatro
