// SPDX-License-Identifier: MIT
#include "second_copy.h"

#include <chrono>
#include <cstdio>
#include <system_error>
#include <thread>
#include <unordered_set>
#include <utility>
#include <vector>

#include "codepage.h"
#include "errors.h"
#include "joined.h"
#include "lines.h"
#include "log/ten_logs.h"
#include "log_text.h"
#include "names.h"
#include "pinned_directory.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kMarker = "vatro.kopi";
constexpr std::string_view kMarkerText =
    "Vatro lægger her en kopi af hver log, hver gang den ændres. Slet ikke denne fil: uden den skriver Vatro intet her."_t;
constexpr std::string_view kAside = "tidligere";
/// An append within one block is done wholly or not at all, also when the process is killed or the disk is full.
constexpr std::size_t kBlock = 4096;
/// A log is read again for as long as this if it is being written.
constexpr int kTries = 50;
constexpr std::chrono::milliseconds kBetweenTries{10};

/// Why a copy cannot be written now, as a sentence for the operator. Empty if it is worth trying again at once.
struct Obstacle {
    std::string reason;
};

std::set<std::string> AllLogs() {
    std::set<std::string> names;
    for (const auto& [band, mode] : kTenLogs) names.insert(LogName(band, mode));
    return names;
}

/// Whether both paths lead to the same directory.
bool IsSame(const fs::path& one, const fs::path& other) {
    const auto identity = IdentityOf(one);
    return !one.empty() && !other.empty() && identity && identity == IdentityOf(other);
}

/// Content of a file, or nothing if it is missing.
std::optional<std::string> ReadIfThere(const fs::path& file) {
    try {
        return ReadWhole(file);
    } catch (const RunTimeError& failure) {
        if (failure.Which() == Failure::FileNotFound) return std::nullopt;
        throw;
    }
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

/// The id in the marker; empty if it has none.
std::string_view IdIn(std::string_view marker) {
    const std::vector<std::string_view> lines = SplitLines(marker);
    return lines.size() < 2 ? std::string_view() : lines[1];
}

}  // namespace

SecondCopy::SecondCopy(CopyPlaces places, Surroundings surroundings)
    : places_(std::move(places)), surroundings_(std::move(surroundings)), due_(AllLogs()) {}

CopyOutcome SecondCopy::Adopt() {
    return Try(true, {});
}

CopyOutcome SecondCopy::Update(const std::set<std::string>& changed) {
    return Try(false, changed);
}

CopyOutcome SecondCopy::Try(bool adopt, const std::set<std::string>& changed) {
    due_.insert(changed.begin(), changed.end());
    found_ = 0;
    CopyOutcome outcome;
    PinnedDirectory held;
    try {
        const fs::path copies = FindPath(places_.copies).path;
        const int error = held.Hold(copies);
        if (error != 0 && FailureOf(error) != Failure::FileNotFound && FailureOf(error) != Failure::PathNotFound)
            throw RunTimeError(FailureOf(error));
        if (error != 0) throw Obstacle{Joined({ShownPath(copies), " findes ikke. Sæt USB-nøglen eller disken til."_t})};
        if (IsSame(held.Path(), places_.logs)) throw Obstacle{Joined({ShownPath(copies), " er selve logbiblioteket."_t})};
        if (IsSame(held.Path(), places_.backups)) throw Obstacle{Joined({ShownPath(copies), " er backupbiblioteket."_t})};
        if (adopt) Adopt(held.Path());
        CheckMark(held.Path());
        const auto identity = IdentityOf(held.Path());
        if (identity != directory_) {
            left_.clear();
            due_ = AllLogs();
        }
        const auto logs = IdentityOf(places_.logs);
        if (!logs) throw Obstacle{std::string("Logbiblioteket kan ikke læses."_t)};
        outcome.sameDisk = identity && identity->volume == logs->volume;
        LookForChanges(held.Path());
        outcome.reason = CopyDue(held.Path());
        outcome.done = due_.empty();
        if (outcome.done && otherLogs_) {
            Mark(held.Path());
            otherLogs_.reset();
        }
        directory_ = identity;
    } catch (const Obstacle& obstacle) {
        outcome.reason = obstacle.reason;
    } catch (const RunTimeError& failure) {
        outcome.reason = Joined({ShownPath(places_.copies), ": ", Meaning(failure.Which()), "."});
    } catch (const std::exception&) {
        // Nothing that goes wrong on this thread may end the program.
        outcome.reason = Joined({ShownPath(places_.copies), ": ", Meaning(Failure::PathFileAccess), "."});
    }
    if (!outcome.done && !outcome.reason.empty()) directory_.reset();
    outcome.found = found_;
    return outcome;
}

/// Finds logs and copies that something else has changed since they were last compared.
void SecondCopy::LookForChanges(const fs::path& directory) {
    for (const auto& [name, left] : left_)
        if (SizeOf(FindPath(directory / name).path) != left.size || SizeOf(FindPath(places_.logs / name).path) != left.logSize)
            due_.insert(name);
}

/// Copies every log that is due, and leaves due those that cannot be copied. Returns why the first of them cannot; empty if it was only
/// being written.
std::string SecondCopy::CopyDue(const fs::path& directory) {
    std::string reason;
    const std::set<std::string> names = due_;
    for (const std::string& name : names) {
        try {
            CopyLog(directory, name);
            due_.erase(name);
        } catch (const Obstacle& obstacle) {
            if (reason.empty()) reason = obstacle.reason;
        } catch (const RunTimeError& failure) {
            if (reason.empty()) reason = Joined({name, " i ", ShownPath(places_.copies), ": ", Meaning(failure.Which()), "."});
        }
    }
    return reason;
}

/// Marks the directory, unless it is already marked by this program: the copies in it may still be those of other logs.
void SecondCopy::Adopt(const fs::path& directory) const {
    const std::optional<std::string> marker = ReadIfThere(directory / kMarker);
    if (!marker || !IsOurs(*marker)) Mark(directory);
}

/// The marker holds the id, then the directory of the logs.
void SecondCopy::Mark(const fs::path& directory) const {
    WriteWhole(directory / kMarker, ToUtf8(Joined({kMarkerText, kLineEnd, places_.id, kLineEnd, ShownPath(places_.logs), kLineEnd})));
}

void SecondCopy::CheckMark(const fs::path& directory) {
    const std::optional<std::string> marker = ReadIfThere(directory / kMarker);
    if (!marker)
        throw Obstacle{Joined({"Biblioteket ", ShownPath(places_.copies),
                               " er tomt eller et andet end det valgte: filen vatro.kopi mangler. Sæt den rigtige USB-nøgle til, eller "
                               "vælg biblioteket igen med Ekstra, Løbende kopi."_t})};
    if (!IsOurs(*marker))
        throw Obstacle{
            Joined({"Biblioteket ", ShownPath(places_.copies),
                    " har kopien fra en anden Vatro. Vælg et andet bibliotek med Ekstra, Løbende kopi, eller det samme igen, hvis "
                    "den anden ikke bruges mere."_t})};
    const std::vector<std::string_view> lines = SplitLines(*marker);
    otherLogs_.reset();
    if (lines.size() > 2 && lines[2] == ToUtf8(ShownPath(places_.logs))) return;
    otherLogs_ = lines.size() > 2 ? PathOfUtf8(lines[2]) : fs::path();
    due_ = AllLogs();
}

bool SecondCopy::IsOurs(std::string_view marker) const {
    return !places_.id.empty() && IdIn(marker) == places_.id;
}

/// The content of the log, read while nothing was written to it. Nothing if it is missing.
std::optional<std::string> SecondCopy::ReadLog(const fs::path& log) const {
    for (int i = 0; i < kTries; ++i) {
        const unsigned before = surroundings_.writes();
        if (before % 2 == 0) {
            std::optional<std::string> content;
            try {
                content = ReadIfThere(log);
            } catch (const RunTimeError& failure) {
                throw Obstacle{Joined({NativeText(log.filename()), " kan ikke læses: "_t, Meaning(failure.Which()), "."})};
            }
            if (surroundings_.writes() == before) return content;
        }
        std::this_thread::sleep_for(kBetweenTries);
    }
    throw Obstacle{};
}

void SecondCopy::CopyLog(const fs::path& directory, const std::string& name) {
    const fs::path copy = FindPath(directory / name).path;
    const fs::path source = FindPath(places_.logs / name).path;
    const std::optional<std::string> log = ReadLog(source);
    // A second name of the log is no copy.
    if (IsSame(copy, source)) SetAside(copy);
    const auto left = left_.find(name);
    if (log && left != left_.end() && Append(copy, *log, left->second)) {
        left->second = {log->size(), ContentHash(*log), log->size()};
        return;
    }
    const std::optional<std::string> old = ReadIfThere(copy);
    if (old && old != log) {
        const Unknown unknown = LookForUnknown(name, *old, log.value_or(std::string()));
        if (unknown.contacts > 0 && !IsOld(ReadLogText(*old).lines, surroundings_.now())) {
            History(places_.logs, HistoryElsewhere(surroundings_.state, places_.logs), surroundings_.now)
                .AddContent(name, *old, History::Keep::FromCopy);
            found_ += unknown.contacts;
        }
        // If the log is missing, its copy stays: it is the best there is.
        if (otherLogs_ || (log && unknown.lines)) SetAside(copy);
    }
    if (!log) {
        left_[name] = {SizeOf(copy), ContentHash(old.value_or(std::string())), 0};
        return;
    }
    if (old != log) WriteWhole(copy, *log);
    left_[name] = {log->size(), ContentHash(*log), log->size()};
}

/// Appends what the log has more than the copy. Returns false if the copy is not known to be the beginning of the log, or if it has to be
/// written anew.
bool SecondCopy::Append(const fs::path& copy, std::string_view log, const Left& left) const {
    if (log.size() < left.size || ContentHash(log.substr(0, left.size)) != left.hash) return false;
    SystemFile file;
    if (file.Open(copy, SystemFile::Access::Append, false) != 0) return false;
    if (file.Length() != static_cast<std::int64_t>(left.size)) return false;
    if (log.size() == left.size) return true;
    if (left.size / kBlock != (log.size() - 1) / kBlock) return false;
    file.Write(log.substr(left.size));
    file.Sync();
    return true;
}

/// The content of the log of this name in the directory that the copies were made from, if that is another one; empty if it is gone.
std::string SecondCopy::OtherLog(const std::string& name) const {
    if (!otherLogs_ || otherLogs_->empty()) return {};
    try {
        return ReadIfThere(FindPath(*otherLogs_ / name).path).value_or(std::string());
    } catch (const RunTimeError&) {
        return {};
    }
}

SecondCopy::Unknown SecondCopy::LookForUnknown(const std::string& name, std::string_view copy, std::string_view log) const {
    if (log.starts_with(copy)) return {};
    const LogText copyText = ReadLogText(copy);
    const std::string other = OtherLog(name);
    std::vector<std::string_view> missing = MissingContacts(copyText.lines, ReadLogText(log).lines);
    missing = MissingContacts(missing, ReadLogText(other).lines);
    std::vector<std::string_view> offered = missing;
    std::unordered_set<std::string_view> lines;
    for (const std::string_view line : SplitLines(copy)) lines.insert(line);
    for (const std::string_view line : SplitLines(log)) lines.erase(line);

    const History history(places_.logs, HistoryElsewhere(surroundings_.state, places_.logs), surroundings_.now);
    for (const History::Version& version : history.Versions(name)) {
        std::string content;
        try {
            content = ReadWhole(version.path);
        } catch (const RunTimeError&) {
            // It may just have been removed because of its age.
            continue;
        }
        const std::vector<std::string_view> versionLines = SplitLines(content);
        const std::unordered_set<std::string_view> known(versionLines.begin(), versionLines.end());
        const auto isKnown = [&known](std::string_view line) { return known.contains(line); };
        // A version that is kept by age explains an older wording of a contact, but may be removed before anybody misses a contact. One
        // that was made from a copy does not make up for that copy.
        if (version.keep != History::Keep::ByAge) std::erase_if(offered, isKnown);
        if (version.keep == History::Keep::FromCopy) continue;
        if (version.keep != History::Keep::ByAge) std::erase_if(missing, isKnown);
        std::erase_if(lines, isKnown);
    }
    return {!missing.empty() || !lines.empty(), offered.size()};
}

void SecondCopy::SetAside(const fs::path& copy) const {
    const fs::path folder = copy.parent_path() / kAside;
    std::error_code error;
    fs::create_directory(folder, error);
    const DateTime now = surroundings_.now();
    char when[32];
    std::snprintf(when, sizeof when, " %04d-%02d-%02d %02d.%02d.%02d", now.year, now.month, now.day, now.hour, now.minute, now.second);
    for (int i = 1;; ++i) {
        fs::path name = folder / copy.stem();
        name += when + (i == 1 ? std::string() : " " + std::to_string(i)) + ".txt";
        if (fs::exists(name, error)) continue;
        if (const int failed = RenameFile(copy, name); failed != 0) throw RunTimeError(FailureOf(failed));
        SyncDirectory(folder);
        return;
    }
}

}  // namespace vatro
