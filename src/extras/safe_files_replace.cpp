// SPDX-License-Identifier: MIT
//
// What SafeFiles does before something in a file is replaced or cut off: it goes into the history.
#include <algorithm>
#include <system_error>
#include <utility>

#include "codepage.h"
#include "copy_owner.h"
#include "errors.h"
#include "joined.h"
#include "safe_files.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

/// The line that has changed from one version of a log to the next, or empty if none has, or more than one.
std::string ChangedLine(const LogText& old, const LogText& now) {
    if (!GoesOn(old.lines, now.lines)) return {};
    const auto [before, after] = std::mismatch(old.lines.begin(), old.lines.end(), now.lines.begin());
    return before == old.lines.end() ? std::string() : std::string(*after);
}

}  // namespace

/// Keeps the whole file in the history before the next contact cuts off its damaged end. Returns a sentence that says where it is.
std::string SafeFiles::KeepDamaged(const fs::path& log, std::string_view content) {
    try {
        History history = HistoryOf(log.parent_path());
        const auto newest = history.Newest(NativeText(log.filename()));
        const bool kept = newest && ReadWhole(newest->path) == content;
        return Joined({"Hele filen ligger som\r\n", ShownPath(kept ? newest->path : history.AddCopy(log, History::Keep::Always).path)});
    } catch (const RunTimeError&) {
        // If it cannot be kept elsewhere, the damaged end stays in the file.
        damaged_.erase(log);
        return std::string("De bliver stående i filen."_t);
    }
}

/// Saves a copy left by an interrupted rewrite, because it may be all that is left of a log.
void SafeFiles::SetAside(const fs::path& copy) {
    const std::string content = ReadWhole(copy);
    const LogText text = ReadLogText(content);
    const CopyOwner owner = OwnerOf(text.lines, copy.parent_path());
    const bool needed = !owner.log || !MissingContacts(text.lines, ReadLogText(owner.content).lines).empty();
    const History::Version version =
        HistoryOf(copy.parent_path()).Move(copy, needed && !text.lines.empty() ? History::Keep::Always : History::Keep::ByAge);
    const std::string log = owner.log ? NativeText(owner.log->filename()) : "det vides ikke";
    History::AddNote(version, ToUtf8(Joined({"Kopien FDkopi.txt fra en afbrudt rettelse. Den hører til: "_t, log, "\r\n"})));
    HistoryOf(copy.parent_path()).Prune(NativeText(copy.filename()));
}

/// Cuts off the damaged end, which is in the history, unless somebody has changed the file since the log was read.
void SafeFiles::CutDamagedEnd(const fs::path& log) {
    const auto found = damaged_.find(log);
    if (found == damaged_.end()) return;
    const DamagedEnd damaged = std::move(found->second);
    damaged_.erase(found);
    const std::string content = ReadWhole(log);
    if (IsNoLog(ReadLogText(content), content)) return;
    if (content.size() != damaged.from + damaged.bytes.size() || !content.ends_with(damaged.bytes)) return;
    SystemFile file;
    if (file.Open(log, SystemFile::Access::Write, false) != 0) return;
    file.Truncate(static_cast<std::int64_t>(damaged.from));
    file.Sync();
}

void SafeFiles::Replace(std::string_view copy, std::string_view name) {
    const auto copyPath = PathTo(copy);
    const auto log = PathTo(name);
    if (!copyPath || !log) return disk_.Replace(copy, name);
    Write(*log, [&] { ReplaceLog(*copyPath, *log); });
}

void SafeFiles::ReplaceLog(const fs::path& copy, const fs::path& log) {
    CheckPlace(log);
    std::error_code error;
    if (!fs::exists(copy, error)) throw RunTimeError(Failure::FileNotFound);

    const std::string now = ReadWhole(copy);
    std::size_t unseen = 0;
    std::string where;
    std::string corrected;
    if (fs::exists(log, error)) {
        const std::string old = ReadWhole(log);
        const LogText oldText = ReadLogText(old);
        const LogText nowText = ReadLogText(now);
        const auto known = known_.find(log);
        const std::string_view sound = std::string_view(old).substr(0, oldText.damagedFrom);
        const bool asRead = known == known_.end() || (known->second.size == sound.size() && known->second.hash == ContentHash(sound));
        const bool correction = IsCorrection(oldText.lines, nowText.lines) && (asRead || old == now);
        const std::size_t missing = MissingContacts(oldText.lines, nowText.lines).size();
        const History::Keep keep = !correction ? History::Keep::ToMerge : missing > 0 ? History::Keep::Always : History::Keep::ByAge;
        if (!correction) unseen = std::max<std::size_t>(missing, 1);
        History history = HistoryOf(log.parent_path());
        try {
            where = ShownPath(history.Add(log, keep).path);
        } catch (const RunTimeError&) {
            // A correction by this program loses nothing else; anything else must not replace a file that was not kept.
            if (!correction) throw;
            Tell(Matter::Room, log.parent_path(),
                 std::string("Der er ikke plads til tidligere udgaver af loggen. Rettelsen er gemt, den gamle udgave er ikke.\r\n\r\n"
                             "Gør plads på disken."_t));
        }
        CopyRights(log, copy);
        corrected = ChangedLine(oldText, nowText);
    }
    if (const int failed = RenameOver(copy, log); failed != 0) throw RunTimeError(FailureOf(failed));
    Changed(log);
    SyncDirectory(log.parent_path());
    Learn(log, now);
    damaged_.erase(log);
    if (!corrected.empty()) surroundings_.corrected(corrected);
    if (!where.empty()) HistoryOf(log.parent_path()).Prune(NativeText(log.filename()));
    if (unseen > 0)
        Tell(Matter::Unseen, where,
             Joined({NativeText(log.filename()),
                     " på disken var en anden, end programmet havde læst, da rettelsen blev gemt.\r\n\r\n"
                     "Loggen har nu de linjer, som vinduet viser. Intet er slettet: filen, som den var, ligger hel som\r\n"_t,
                     where, "\r\n\r\nAfslut Vatro, når I har et roligt øjeblik, og start igen: så tilbyder programmet at samle de to."_t}));
}

void SafeFiles::Copy(std::string_view from, std::string_view to) {
    const auto source = PathTo(from);
    const auto target = PathTo(to);
    if ((source && IsNoFile(*source)) || (target && IsNoFile(*target))) throw RunTimeError(Failure::PathFileAccess);
    if (source && target && SizeOf(*target) > 0 && IdentityOf(*source) != IdentityOf(*target)) KeepOlderCopy(*source, *target);
    disk_.Copy(from, to);
}

/// Keeps the older copy on the computer, because the target may be a stick that is about to fail. Does so only if there is room.
void SafeFiles::KeepOlderCopy(const fs::path& source, const fs::path& target) {
    try {
        std::error_code error;
        fs::create_directories(surroundings_.state, error);
        const fs::space_info space = fs::space(surroundings_.state, error);
        if (error || space.available < SizeOf(target) || ReadWhole(target) == ReadWhole(source)) return;
        History history = HistoryOf(target.parent_path());
        history.AddCopy(target, History::Keep::ByAge);
        history.Prune(NativeText(target.filename()));
    } catch (const RunTimeError&) {
        return;
    }
}

}  // namespace vatro
