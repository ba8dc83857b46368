// SPDX-License-Identifier: MIT
#include <system_error>

#include "codepage.h"
#include "errors.h"
#include "joined.h"
#include "names.h"
#include "recovery.h"
#include "system_file.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

/// A message for the case that the last line, which decides the next serial number, has a lower number than another line. Empty
/// otherwise.
std::string NumberToSet(const std::vector<std::string_view>& lines) {
    int last = 0;
    for (const std::string_view line : lines)
        if (IsContact(line)) last = Summarise({line}).highestNumber;
    const int highest = Summarise(lines).highestNumber;
    if (last >= highest) return {};
    return Joined({"Det højeste løbenummer i loggen er "_t, std::to_string(highest), ", men den sidste linje har "_t, std::to_string(last),
                   ". Sæt det næste med Indstillinger, Nyt QSO nummer..."_t});
}

/// Replaces the log by this content after adding the present log to the history.
void Rewrite(const fs::path& log, std::string_view content, History& history) {
    std::error_code error;
    if (fs::exists(log, error)) history.Add(log, History::Keep::Always);
    WriteWhole(log, content);
}

std::string Merge(const Finding& finding, const fs::path& log, History& history) {
    const std::string source = ReadWhole(finding.source);
    std::error_code error;
    const std::string present = fs::exists(log, error) ? ReadWhole(log) : std::string();
    const LogText old = ReadLogText(source);
    const LogText now = ReadLogText(present);
    const std::vector<std::string_view> merged = Merged(old.lines, now.lines);
    Rewrite(log, LogContent(merged), history);
    return NumberToSet(merged);
}

/// A file name that is not used yet.
fs::path FreeName(const fs::path& log, std::string_view addition) {
    std::error_code error;
    for (int i = 1;; ++i) {
        fs::path name = log.parent_path() / log.stem();
        name += PathOf(Joined({" ", addition, i == 1 ? std::string() : " " + std::to_string(i), ".txt"}));
        if (!fs::exists(name, error)) return name;
    }
}

}  // namespace

std::string Repair(const Finding& finding, History& history, std::string_view candidate) {
    fs::path log = finding.log;
    Finding::Action action = finding.action;
    if (!finding.candidates.empty()) {
        if (candidate.empty()) candidate = finding.candidates.front();
        if (!candidate.empty()) {
            log = finding.source.parent_path() / PathOf(candidate);
            std::error_code error;
            const bool missing = !fs::exists(log, error) || fs::file_size(log, error) == 0;
            action = missing ? Finding::Action::CopyBecomesLog : Finding::Action::MergeCopy;
        }
    }
    switch (action) {
        case Finding::Action::None:
            return {};
        case Finding::Action::CopyBecomesLog:
            if (const int error = RenameOver(finding.source, log); error != 0) throw RunTimeError(FailureOf(error));
            SyncDirectory(log.parent_path());
            return {};
        case Finding::Action::MergeCopy: {
            std::string outcome = Merge(finding, log, history);
            history.Move(finding.source, History::Keep::Always);
            return outcome;
        }
        case Finding::Action::KeepCopy:
            history.Move(finding.source, History::Keep::Always);
            return {};
        case Finding::Action::CutEnd: {
            const std::string content = ReadWhole(log);
            const std::size_t end = ReadLogText(content).damagedFrom;
            // An earlier repair may already have rewritten the log without the damaged end.
            if (end < content.size()) Rewrite(log, std::string_view(content).substr(0, end), history);
            return {};
        }
        case Finding::Action::MergeVersion: {
            std::string outcome = Merge(finding, log, history);
            History::MarkMerged(finding.source);
            return outcome;
        }
        case Finding::Action::Restore:
            WriteWhole(log, ReadWhole(finding.source));
            return {};
        case Finding::Action::PutBeside: {
            const fs::path beside = FreeName(log, "fra historikken");
            WriteWhole(beside, ReadWhole(finding.source));
            // Make the present log the newest version, so that this question is not asked again.
            history.AddCopy(log, History::Keep::ByAge);
            return Joined({"Den længere udgave ligger som "_t, NativeText(beside.filename()), "."});
        }
    }
    return {};
}

}  // namespace vatro
