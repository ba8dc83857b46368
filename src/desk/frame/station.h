// SPDX-License-Identifier: MIT
//
// The station as the settings tell it, and the clock of its log: universal time.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

/// The program's own data directory, without a final separator: lande.txt, refpfx.txt, edr.txt, operator.txt, cty.dat.
/// Set by the start procedure only.
extern std::string gsFDLib;
/// The station's own call. Changed by the dialogue of the contest call.
extern std::string gsMyCall;
/// Contest class, "A" or "B". Changed by the menu.
extern std::string gsKlasse;
/// Telephone number for the summary. Changed by the dialogue of the contest call.
extern std::string gsTelefon;
/// A whole number of hours as text, -11 to 12: what is added to local time to get universal time. Changed by the
/// dialogue of the offset.
extern std::string gsUTC;
/// Whether the start information is shown at the next start.
extern bool gbVisInfo;

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

/// All state of a run as it is before the start.
void ResetStation();

}  // namespace vatro
