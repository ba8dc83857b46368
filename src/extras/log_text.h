// SPDX-License-Identifier: MIT
//
// The content of a log file, looked at from outside the program: its lines, what of it is damage, and how two versions of a
// log differ.
//
// Nothing here asks whether a contact is right. A line is a contact unless it is a note; two lines are the same contact if they
// are equal, or if they have the same time and the same number sent, which a correction usually leaves as they are.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// Refers to the content it was made from, which must outlive it.
struct LogText {
    /// The lines that the program is shown, without their ends.
    std::vector<std::string_view> lines;
    /// Where the damaged end of the content begins; its size if the content ends well. An interrupted write leaves half a line
    /// there, or zeros, or remains of another file.
    std::size_t damagedFrom = 0;
    /// Lines from which zeros were removed; `lines` refers to them.
    std::deque<std::string> cleaned;
    /// How many lines with zeros in them were met before the damaged end, shown cleaned or left out.
    std::size_t damagedInside = 0;
};

/// Splits the content of a log file. Not among the lines, as `damagedFrom` tells, is what stands at the end and is no line of a
/// log: it begins with no time and is no note, has control characters in it, or has neither a line end nor 79 columns. An empty
/// line at the end is such a one: the program would take its number for 0 and begin again with 0001. Further up, zeros are
/// removed from a line, and what is shorter than 79 columns then is left out.
LogText ReadLogText(std::string_view content);

/// Whether the content is none of a log at all, such as one in another character set: more than the beginning of a first contact,
/// and not one line to be shown.
bool IsNoLog(const LogText& text, std::string_view content);

/// Whether the line is a contact: neither a note nor empty.
bool IsContact(std::string_view line);

/// The contacts of `old` that `now` has neither whole nor under the same time and number, one for one.
std::vector<std::string_view> MissingContacts(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// Whether `now` is `old` with at most one line changed, which is all that a correction does.
bool IsCorrection(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// Whether `now` is `old` with at most one line changed and any number of lines appended.
bool GoesOn(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// All lines of `now` in their order, and those of `old` that it lacks, each behind the line it followed in `old`. A contact
/// that both have under the same time and number is taken from `now`.
std::vector<std::string_view> Merged(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// The lines as the content of a file.
std::string LogContent(const std::vector<std::string_view>& lines);

/// What a log holds, in a few words for a person.
struct LogSummary {
    std::size_t contacts = 0;
    /// "05-09-26 12:07" of the first and of the last contact; the time alone where a line has no date, empty without contacts.
    std::string first;
    std::string last;
    /// The highest serial number sent, 0 if there is none.
    int highestNumber = 0;
};
LogSummary Summarise(const std::vector<std::string_view>& lines);

/// The line from which on the program cannot read the log, counted from 1, or 0: its number or points are too large for their
/// type, and the program takes that for the end of the log.
std::size_t UnreadableLine(const std::vector<std::string_view>& lines);

/// A check sum of a content, to recognise it again. Continued by handing in that of the part before.
std::size_t ContentHash(std::string_view content, std::size_t before = 0);

}  // namespace vatro
