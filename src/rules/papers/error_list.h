// SPDX-License-Identifier: MIT
//
// The error list: checks every line of the ten logs against the rules of the entry, to find errors made by corrections, imports and
// editors before the logs are sent in. No log is changed.
//
// All texts are trimmed of blanks on both sides before they are checked. Two of the rules for the received number test the received
// report once more, so a wrong number is never found; and a duplicate is listed even if its line marks it as one. Do not correct this:
// operators compare two error lists of one log and expect the same lines (docs/rules.md).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "country/lookup.h"
#include "country/tables.h"
#include "papers/context.h"
#include "papers/logs.h"
#include "score/stations.h"

namespace vatro {

/// The file name of the error list.
inline constexpr std::string_view kErrorListName = "Fejllist.txt";

/// Writes the head of the list.
void WriteErrorListHead(LineSink& list, const PaperContext& context);
/// Writes the line above a log's section.
void DanFejlListHoved(LineSink& list, const LogId& log);
/// Checks the logs, with worked marks of its own.
class ErrorList {
public:
    /// Begins with the marks given, and with the tables of `countries`, which must outlive this object.
    ErrorList(const WorkedCountries& countries, const Stations& stations) : countries_(countries), stations_(stations) {}

    /// Checks the lines of a log and writes the errors. Fails with 62 if there is no line, and with 5 at a line without a call, after
    /// writing the errors found so far. The worked marks are cleared first: each log is checked on its own.
    void DanFejlListKrop(LineSource& lines, LineSink& list, const PaperContext& context, const LogId& log);

    /// The marks as the log checked last left them. The entry desk takes them over. A load clears the marks of the rows in use, so only
    /// the mark of a row that is not in use stays: without a country table every prefix leads to such a row.
    const WorkedCountries& Countries() const { return countries_; }
    const Stations& CheckedStations() const { return stations_; }

    /// Values from the contact checked last; a value is empty if the check ended before it was computed. The entry desk shows these
    /// values until it looks up the next contact.
    struct Leftovers {
        /// Base call of the last contact, cut or padded to six characters by the lookup of stations.
        std::optional<std::string> gsCall;
        /// Points of the last contact.
        std::optional<std::int32_t> giQSOPoint;
        /// How often a country was marked in all logs checked. The entry desk adds it to its number of worked countries, which is wrong
        /// until the next load. The run loads the log at its end, so nobody sees it unless the run fails.
        std::int16_t newCountries = 0;
    };
    const Leftovers& Left() const { return left_; }

private:
    class Check;

    WorkedCountries countries_;
    Stations stations_;
    Leftovers left_;
};

/// Writes the message that there is no such log. The message is also written if a section breaks off because of a failure.
void WriteLogNotFound(LineSink& list);

/// Writes the line above its first error, unless `QSOShown` says that this has been done. Returns true, the new value for `QSOShown`.
bool DanFejlQSO(LineSink& list, std::string_view line, bool QSOShown);

/// Returns the error message for a text that is not a time "Hh:Nn", with any character in the middle; nothing for a good time. The
/// message gives the time `now` as an example.
std::optional<std::string> ValiderTid(std::string_view text, const DateTime& now);
/// Whether the text is a valid date.
bool GyldigDato(std::string_view text);

}  // namespace vatro
