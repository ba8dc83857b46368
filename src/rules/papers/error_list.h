// SPDX-License-Identifier: MIT
//
// The error list: every line of the ten logs against the rules of the entry, so that what correction, import and an editor have
// brought in is found before the logs go in. No log is changed.
//
// The rules look at texts trimmed of blanks on both sides. Two of those for the received number test the received report once
// more, so that a wrong number is never found. That is the list as it has always been: an operator who compares two of them finds
// the same lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

/// Writes the head of the list.
void WriteErrorListHead(LineSink& list, const PaperContext& context);
/// Writes the line above a log's section.
void DanFejlListHoved(LineSink& list, const LogId& log);
/// Writes what is found in a log's lines, of which there must be one: fails with 62 if there is none, and with 5 at a line without
/// a call, behind the errors found so far.
void DanFejlListKrop(LineSource& lines, LineSink& list, const PaperContext& context, const LogId& log);
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
