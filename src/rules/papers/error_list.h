// SPDX-License-Identifier: MIT
//
// The error list: every line of the ten logs against the rules of the entry, so that what correction, import and an editor have
// brought in is found before the logs go in. No log is changed.
//
// The rules look at texts trimmed of blanks on both sides. Two of those for the received number test the received report once
// more, so that a wrong number is never found. That is the list as it has always been: an operator who compares two of them finds
// the same lines.
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

/// Writes the head of the list.
void WriteErrorListHead(LineSink& list, const PaperContext& context);
/// Writes the line above a log's section.
void DanFejlListHoved(LineSink& list, const LogId& log);
/// The check of the logs, with marks of its own for what has been worked.
class ErrorList {
public:
    /// `tables` must live as long as this.
    ErrorList(const CountryTables& tables, const Stations& stations) : countries_(tables), stations_(stations) {}

    /// Writes what is found in a log's lines, of which there must be one: fails with 62 if there is none, and with 5 at a line
    /// without a call, behind the errors found so far. Marks are wiped first: each log counts for itself.
    void DanFejlListKrop(LineSource& lines, LineSink& list, const PaperContext& context, const LogId& log);

    /// What the check has found out last; nothing where it did not come so far. At the entry desk these values are seen until the
    /// next look at a contact.
    struct Leftovers {
        /// Base call of the last contact, as the lookup of stations leaves it.
        std::optional<std::string> gsCall;
        /// What the last contact is worth.
        std::optional<std::int32_t> giQSOPoint;
        /// Countries worked in the last log, as far as it was checked.
        std::optional<std::int16_t> giMult;
    };
    const Leftovers& Left() const { return left_; }

private:
    class Check;

    WorkedCountries countries_;
    Stations stations_;
    Leftovers left_;
};

/// Writes that there is no such log, which also stands where a section broke off.
void WriteLogNotFound(LineSink& list);

/// Shows the line above its first error: does nothing if it has been shown. Gives that it has been shown now.
bool DanFejlQSO(LineSink& list, std::string_view line, bool QSOShown);

/// The message for a text that is no time "Hh:Nn", with any character in the middle; nothing for a good one. The message shows the
/// time `now` as an example.
std::optional<std::string> ValiderTid(std::string_view text, const DateTime& now);
/// Whether the text is a date.
bool GyldigDato(std::string_view text);

}  // namespace vatro
