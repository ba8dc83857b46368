// SPDX-License-Identifier: MIT
//
// The questions of the very first start: where the logs are kept, the station's call, its class, its telephone number, the operator and
// the time. This part proposes answers, says what is wrong with them, and prepares the disk; the page that asks is qt/first_page.h.
//
// Nothing here is asked by the rules at the start except for the log directory. An answer that they can do without may be empty.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "datetime.h"

namespace vatro {

/// Range of the UTC offset, in hours.
inline constexpr int kLeastOffset = -11;
inline constexpr int kGreatestOffset = 12;
/// The longest operator and the longest telephone number that the program keeps.
inline constexpr int kOperatorLength = 6;
inline constexpr int kTelephoneLength = 8;

/// Whether the settings are those of a program that nobody has used yet.
bool IsFirstStart(std::string_view logDirectory, std::string_view myCall);

/// The answers. Paths are in UTF-8, because an operator may type characters that the code page lacks; all other text is in the code page.
struct FirstAnswers {
    std::string call;
    /// 'A' or 'B'.
    char contestClass = 'A';
    std::string telephone;
    std::string operatorCall;
    std::string directory;
    /// Whether to go on in the logs that the directory already holds.
    bool useLogs = false;
    /// Hours from the computer's time to universal time.
    int offset = 0;
};

/// The directory that is proposed for the logs, in UTF-8: one for each year, in the user's home directory.
std::string ProposedLogDirectory(const std::filesystem::path& home, const DateTime& now);

/// The offset that is proposed, from the computer's two times read at the same moment. If they do not differ by whole hours, the offset
/// of Danish summer time, in which the contest takes place.
int ProposedOffset(const DateTime& local, const DateTime& universal);

/// The question whether the clock is right.
std::string ClockQuestion(const DateTime& local, int offset);
/// How to put the clock right.
std::string ClockAdvice(const DateTime& local);

/// What a directory is good for.
struct DirectoryFinding {
    enum class Kind {
        Unusable,
        /// It does not exist and will be created.
        Missing,
        /// It exists and holds no contacts.
        Free,
        HoldsLogs,
    };
    Kind kind = Kind::Unusable;
    /// The directory, spelled as on the disk as far as it exists.
    std::filesystem::path path;
    /// Says why it cannot be used, or what it holds; empty for a free directory.
    std::string text;
};

/// Examines a directory as it was typed, without changing anything. "~/" at its beginning stands for the home directory.
DirectoryFinding ExamineDirectory(std::string_view typed, const std::filesystem::path& home);

/// The questions that can be answered wrongly, from the top of the page.
enum class FirstQuestion { Call, Operator, Directory, UseLogs };

/// What is wrong with an answer.
struct Complaint {
    FirstQuestion about = FirstQuestion::Call;
    std::string text;
};

/// What is wrong with the answers, from the top of the page; nothing if they can be used.
std::vector<Complaint> CheckAnswers(const FirstAnswers& answers, const std::filesystem::path& home);

/// What there is to say about a call that can be used; usually nothing. The summary looks for the station's name under its call with "/P"
/// and prints none for any other. Which class it is in makes no difference.
std::string CallHint(std::string_view call);

/// Prepares the disk for answers that have been checked: creates the log directory with its marker file, and adds the operator to the list
/// in the directory of the tables. Everything is on the disk on return. If a step fails, returns what is wrong; a new directory is then
/// removed again as long as it is empty.
std::vector<Complaint> PrepareDisk(const FirstAnswers& answers, const std::filesystem::path& home, const std::filesystem::path& tables);

/// The log directory as the settings spell it: text of the code page without a final separator.
std::string LogDirectorySetting(const FirstAnswers& answers, const std::filesystem::path& home);

}  // namespace vatro
