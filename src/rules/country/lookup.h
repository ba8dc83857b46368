// SPDX-License-Identifier: MIT
//
// From a call to its country: the worked marks, the multiplier count, the points outside Europe, and the words for the
// status bar.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

/// What a search does with the mark of what it finds: marks it as worked, takes the mark away, or only asks.
enum class MarkAction { Mark, Unmark, Test };

/// Whether the country is shown while a call is typed; the menu changes it. Also a condition of the rule of the unknown
/// prefix: switched off, such a contact keeps its points and is not written to ukendt.txt. That is meant so.
extern bool gbVisLand;
/// Countries marked as worked in the current log.
extern std::int16_t giMult;

/// Finds the country of a call. `result` becomes its ten-character prefix if the action took effect - with Op and Test:
/// the country was not marked, the contact is a new multiplier - and "" otherwise. Op and Ned keep giMult in step. For a
/// country outside Europe giQSOPoint becomes 6 with every action, but for the calls of the European areas of a country
/// that the tables hold as Asian. No country: nothing changes. Fails with 5 on an empty
/// call, and as FindWholeCall does.
void LandWkd(std::string_view call, std::string& result, MarkAction action);

/// Words the country of a call for the status bar. With gbVisLand off `text` stays as it was. Fails
/// as LandWkd does.
void LandStatusTekst(std::string_view call, std::string& text);

/// Whether a status text is that of an unknown prefix.
bool IsUnknown(std::string_view statusText);

}  // namespace vatro
