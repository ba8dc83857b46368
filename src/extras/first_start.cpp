// SPDX-License-Identifier: MIT
#include "first_start.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "codepage.h"
#include "columns.h"
#include "directory_lock.h"
#include "errors.h"
#include "joined.h"
#include "lines.h"
#include "log_text.h"
#include "names.h"
#include "numbers.h"
#include "safe_files.h"
#include "system_file.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kOperators = "operator.txt";
constexpr int kSummerTime = -2;
constexpr long long kHour = 3'600'000;
/// The two clocks are read one after the other.
constexpr long long kTolerance = 5'000;

std::string Utf8Of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

DirectoryFinding Unusable(fs::path path, std::string_view text) {
    return {DirectoryFinding::Kind::Unusable, std::move(path), std::string(text)};
}

/// Whether the program would see some characters of this UTF-8 text as "?".
bool LeavesCodePage(std::string_view text) {
    return ToUtf8(FromUtf8(text)) != text;
}

/// The path that the text means; empty if it does not lead anywhere by itself.
fs::path Meant(std::string_view typed, const fs::path& home) {
    const std::string text(Trim(typed));
    fs::path path = PathOfUtf8(text);
    if (text == "~" || text.starts_with("~/")) path = home / PathOfUtf8(text.substr(std::min<std::size_t>(text.size(), 2)));
    if (!path.is_absolute()) return {};
    path = path.lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

/// The contacts in the logs of a directory.
struct Holding {
    std::size_t contacts = 0;
    /// Date and time of the last one, as a text.
    std::string last;
};

/// When the contact of a summary was logged, for comparison.
long long MomentOf(const std::string& text) {
    const std::size_t blank = text.find(' ');
    const auto date = blank == std::string::npos ? std::nullopt : ParseDate(text.substr(0, blank));
    const auto time = blank == std::string::npos ? std::nullopt : ParseTime(text.substr(blank + 1));
    if (!date || !time) return 0;
    return Milliseconds(*date) + time->hour * kHour + time->minute * (kHour / 60);
}

/// Fails with the disk's failure.
Holding Count(const fs::path& directory) {
    Holding all;
    std::error_code error;
    fs::directory_iterator entry(directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!IsLogName(entry->path()) || IsNoFile(entry->path())) continue;
        const std::string content = ReadWhole(entry->path());
        const LogSummary log = Summarise(ReadLogText(content).lines);
        all.contacts += log.contacts;
        if (all.last.empty() || MomentOf(log.last) > MomentOf(all.last)) all.last = log.last;
    }
    if (error) throw RunTimeError(FailureOf(error.value()));
    return all;
}

DirectoryFinding ExamineExisting(const fs::path& path) {
    Holding holding;
    try {
        holding = Count(path);
    } catch (const RunTimeError& failure) {
        return Unusable(path, Joined({"Biblioteket kan ikke læses: "_t, Meaning(failure.Which()), ". Vælg et andet."}));
    }
    if (holding.contacts == 0) return {DirectoryFinding::Kind::Free, path, {}};
    const bool one = holding.contacts == 1;
    return {DirectoryFinding::Kind::HoldsLogs, path,
            Joined({"Her er allerede logget "_t, std::to_string(holding.contacts), one ? " kontakt, " : " kontakter, den sidste ",
                    holding.last, "."})};
}

/// Whether the path leads through something that is not a directory.
bool BlockedByFile(const fs::path& path) {
    std::error_code error;
    for (fs::path above = path; above.has_relative_path(); above = above.parent_path()) {
        const fs::file_status status = fs::status(above, error);
        if (fs::exists(status)) return !fs::is_directory(status);
    }
    return false;
}

/// A directory with those above it, which exist for as long as nobody forgets to keep them.
class NewDirectories {
public:
    /// Fails with the disk's failure.
    explicit NewDirectories(const fs::path& path) {
        std::vector<fs::path> missing;
        std::error_code error;
        for (fs::path above = path; above.has_relative_path() && !fs::exists(above, error); above = above.parent_path())
            missing.push_back(above);
        for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
            if (!fs::create_directory(*next, error) && error) {
                Remove();
                throw RunTimeError(FailureOf(error.value()));
            }
            made_.push_back(*next);
            SyncDirectory(next->parent_path());
        }
    }
    ~NewDirectories() {
        if (!kept_) Remove();
    }
    NewDirectories(const NewDirectories&) = delete;
    NewDirectories& operator=(const NewDirectories&) = delete;

    void Keep() { kept_ = true; }

private:
    void Remove() noexcept {
        std::error_code ignored;
        // Only what is empty is removed.
        for (auto last = made_.rbegin(); last != made_.rend(); ++last) fs::remove(*last, ignored);
        made_.clear();
    }

    std::vector<fs::path> made_;
    bool kept_ = false;
};

void WriteMarker(const fs::path& directory) {
    const fs::path marker = FindPath(directory / kLogMarker).path;
    if (IsNoFile(marker)) throw RunTimeError(Failure::PathFileAccess);
    SystemFile file;
    if (const int error = file.Open(marker, SystemFile::Access::Write, true); error != 0) throw RunTimeError(FailureOf(error));
    file.Truncate(0);
    file.Sync();
    file.Close();
    SyncDirectory(directory);
}

void AddOperator(const fs::path& tables, const std::string& name) {
    const fs::path file = FindPath(tables / kOperators).path;
    std::string list = IsNoFile(file) || SizeOf(file) > 0 ? ReadWhole(file) : std::string();
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = std::min(list.find_first_of(kLineEnd, at), list.size());
        if (list.substr(at, std::min<std::size_t>(end - at, kOperatorLength)) == name) return;
        at = end + 1;
    }
    if (!list.empty() && list.back() != '\n' && list.back() != '\r') list += kLineEnd;
    list += name;
    list += kLineEnd;
    WriteWhole(file, list);
}

}  // namespace

bool IsFirstStart(std::string_view logDirectory, std::string_view myCall) {
    return logDirectory.empty() && myCall.empty();
}

std::string ProposedLogDirectory(const fs::path& home, const DateTime& now) {
    fs::path proposed = home / Joined({"Vatro ", std::to_string(now.year)});
    return Utf8Of(proposed.make_preferred());
}

int ProposedOffset(const DateTime& local, const DateTime& universal) {
    const long long difference = Milliseconds(universal) - Milliseconds(local);
    const long long rounded = (difference + (difference < 0 ? -kHour / 2 : kHour / 2)) / kHour;
    const bool whole = std::abs(difference - rounded * kHour) <= kTolerance;
    return whole && rounded >= kLeastOffset && rounded <= kGreatestOffset ? static_cast<int>(rounded) : kSummerTime;
}

std::string ClockQuestion(const DateTime& local, int offset) {
    const DateTime now = AddHours(local, offset);
    return Joined({"Klokken er nu ", FormatTime(now), " UTC. Rigtigt?"});
}

std::string ClockAdvice(const DateTime& local) {
    return Joined({"Er timen forkert, så ret tallet med pil op og pil ned. Er minutter eller dato forkerte, så stil computerens ur: "_t,
                   FormatTime(local), " den ", FormatDate(local), "."});
}

DirectoryFinding ExamineDirectory(std::string_view typed, const fs::path& home) {
    if (Trim(typed).empty()) return Unusable({}, "Skriv, hvor loggene skal ligge."_t);
    const fs::path path = Meant(typed, home);
    const FoundPath found = FindPath(path);
    if (LeavesCodePage(Utf8Of(found.path)))
        return Unusable(path, "Vatro kender ikke alle tegn i stien. Vælg et bibliotek med danske og andre vesteuropæiske bogstaver."_t);
    if (path.empty()) return Unusable(path, Joined({"Skriv hele stien, for eksempel "_t, NativeText(home / "log"), "."}));
    if (!path.has_relative_path()) return Unusable(path, "Loggene kan ikke ligge her. Vælg et bibliotek."_t);
    std::error_code error;
    if (fs::is_directory(found.path, error)) return ExamineExisting(found.path);
    if (BlockedByFile(found.path)) return Unusable(found.path, "Det er en fil. Vælg et bibliotek."_t);
    return {DirectoryFinding::Kind::Missing, found.path, "Biblioteket bliver oprettet."};
}

std::vector<Complaint> CheckAnswers(const FirstAnswers& answers, const fs::path& home) {
    std::vector<Complaint> complaints;
    if (answers.call.empty()) complaints.push_back({FirstQuestion::Call, "Skriv jeres kaldesignal."});
    const DirectoryFinding found = ExamineDirectory(answers.directory, home);
    if (found.kind == DirectoryFinding::Kind::Unusable) complaints.push_back({FirstQuestion::Directory, found.text});
    if (found.kind == DirectoryFinding::Kind::HoldsLogs && !answers.useLogs)
        complaints.push_back({FirstQuestion::UseLogs, std::string("Sæt kryds med mellemrum, eller vælg et andet bibliotek."_t)});
    return complaints;
}

std::string CallHint(std::string_view call) {
    if (call.empty() || call.ends_with("/P")) return {};
    return std::string("Uden /P finder sammentællingen ikke jeres navn på EDRs liste."_t);
}

std::vector<Complaint> PrepareDisk(const FirstAnswers& answers, const fs::path& home, const fs::path& tables) {
    const fs::path path = ExamineDirectory(answers.directory, home).path;
    std::string_view what = "Biblioteket kan ikke oprettes: "_t;
    try {
        NewDirectories directories(path);
        what = "Der kan ikke skrives i biblioteket: "_t;
        WriteMarker(path);
        // The start of the program acquires the lock again, and asks if its holder is only silent.
        if (DirectoryLock().Acquire(path) == DirectoryLock::Result::Taken)
            return {{FirstQuestion::Directory, std::string("En anden Vatro bruger biblioteket. Vælg et andet."_t)}};
        directories.Keep();
    } catch (const RunTimeError& failure) {
        return {{FirstQuestion::Directory, Joined({what, Meaning(failure.Which()), ". Vælg et andet."_t})}};
    }
    if (answers.operatorCall.empty()) return {};
    try {
        AddOperator(tables, answers.operatorCall);
    } catch (const RunTimeError& failure) {
        return {{FirstQuestion::Operator, Joined({NativeText(tables / kOperators), " kan ikke skrives: ", Meaning(failure.Which()),
                                                  ". Tøm feltet for at gå videre uden."_t})}};
    }
    return {};
}

std::string LogDirectorySetting(const FirstAnswers& answers, const fs::path& home) {
    return ShownPath(ExamineDirectory(answers.directory, home).path);
}

}  // namespace vatro
