// SPDX-License-Identifier: MIT
//
// Analyses the content of a log file from outside the program: its lines, which part of it is damaged, and how two versions of a log
// differ.
//
// Nothing here checks whether a contact is correct. Every line that is neither empty nor a note is a contact. Two lines are the same
// contact if they are equal, or if they have the same time and the same sent number, which a correction usually leaves unchanged.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "datetime.h"

namespace vatro {

/// Refers to the content it was made from, which must outlive it.
struct LogText {
    /// The lines that the program gets to see, without their line endings.
    std::vector<std::string_view> lines;
    /// Offset at which the damaged end of the content begins, or the size of the content if there is none. An interrupted write leaves
    /// half a line there, or zeros, or remains of another file.
    std::size_t damagedFrom = 0;
    /// Storage for lines from which zeros were removed; `lines` refers to it.
    std::deque<std::string> cleaned;
    /// How many lines before the damaged end contained zeros, whether they were cleaned or left out.
    std::size_t damagedInside = 0;
};

/// Splits the content of a log file into lines.
///
/// Lines at the end that cannot belong to a log count as the damaged end (`damagedFrom`) and are left out: those that neither begin
/// with a time nor are notes, those with control characters, and an unfinished last line shorter than 79 columns. This includes empty
/// lines at the end: the program would read their serial number as 0 and start again at 0001. In the lines before the damaged end,
/// zeros are removed; a line that is then shorter than 79 columns is left out.
LogText ReadLogText(std::string_view content);

/// Whether the content is not a log at all, for example because it is in another character set: it is longer than an interrupted first
/// contact could be, and yet no line of it can be shown.
bool IsNoLog(const LogText& text, std::string_view content);

/// Whether the line is a contact, that is, neither empty nor a note.
bool IsContact(std::string_view line);

/// The contacts of `old` that are missing from `now`. A contact of `now` that is identical, or has the same time and number, stands for
/// at most one contact of `old`.
std::vector<std::string_view> MissingContacts(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// Whether `now` is `old` with at most one line changed, which is all that a correction does.
bool IsCorrection(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// Whether `now` is `old` with at most one line changed and any number of lines appended.
bool GoesOn(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// All lines of `now` in order, plus the lines of `old` that are missing from it, each placed after the line that it followed in `old`.
/// Of a contact that both have under the same time and number, the line in `now` is used.
std::vector<std::string_view> Merged(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now);

/// Whether something of this time can belong to the contest that is going on, because it is less than three days old.
bool IsYoung(const DateTime& when, const DateTime& now);

/// Whether the last contact among the lines is of an earlier contest. Lines without a date count as new.
bool IsOld(const std::vector<std::string_view>& lines, const DateTime& now);

/// Joins the lines to the content of a file.
std::string LogContent(const std::vector<std::string_view>& lines);

/// A short summary of a log, for display.
struct LogSummary {
    std::size_t contacts = 0;
    /// Date and time of the first and of the last contact, such as "05-09-26 12:07". Only the time if the line has no date; empty if
    /// there is no contact.
    std::string first;
    std::string last;
    /// The highest serial number sent, or 0 if there is none. Numbers above 32767 are ignored.
    int highestNumber = 0;
};
/// Summarises the contacts among these lines; notes are ignored.
LogSummary Summarise(const std::vector<std::string_view>& lines);

/// The first line that the program cannot read, counted from 1, or 0 if it can read all. A serial number or points total that is too
/// large for its type makes the program stop reading there, as if the log had ended.
std::size_t UnreadableLine(const std::vector<std::string_view>& lines);

/// A checksum by which to recognise a content. To continue over several parts, pass the checksum of the parts before as `before`.
std::size_t ContentHash(std::string_view content, std::size_t before = 0);

}  // namespace vatro
