// SPDX-License-Identifier: MIT
//
// The clock of the log, universal time, and the paths of the program's files.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

/// Universal time now: the local clock plus gsUTC hours. Fails with 13 if gsUTC is no number, with 6 beyond 16 bits.
DateTime UtcNow();
/// "Hh:Nn" of now, as the time field and the messages show it.
std::string UtcTimeText();

/// `name` in the directory `directory`.
std::string PathIn(const std::string& directory, std::string_view name);

/// The directory in which a file lies, without a final separator. Fails with 5 if its path names none.
std::string DirectoryOf(const std::string& path);

/// Asks for a directory by the file that the user picks or creates in it, as file dialogues offer no directory itself. Gives
/// the file's path, which is not created yet; fails with 32755 on Cancel.
std::string ChooseMarkerFile(std::string_view name, std::string_view title);

}  // namespace vatro
