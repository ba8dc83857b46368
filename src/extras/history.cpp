// SPDX-License-Identifier: MIT
#include "history.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <mutex>
#include <set>
#include <system_error>
#include <utility>

#include "codepage.h"
#include "errors.h"
#include "joined.h"
#include "names.h"
#include "numbers.h"
#include "system_file.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFolder = "historik";
constexpr std::string_view kReadMe = "LÆS MIG.txt"_t;
constexpr std::string_view kReadMeText =
    "Her ligger tidligere udgaver af loggene. Vatro lægger en udgave her, hver gang en rettelse skriver en log forfra.\r\n"
    "Navnet siger, hvilken log det er, og hvornår udgaven blev afløst. \"behold\": udgaven har en kontakt, som den næste\r\n"
    "ikke har. \"samles\": Vatro havde ikke læst den hele, da den blev afløst, og tilbyder ved næste start at samle dem.\r\n"
    "\"fra kopi\": den løbende kopi havde kontakter, som loggen ikke har.\r\n"
    "Udgaver uden de ord ryddes op efter alder. Filerne må gerne kopieres og læses.\r\n"
    "På en disk, der ikke kan give en fil to navne, som en USB-nøgle, ligger udgaverne i stedet på computeren i\r\n"_t;

constexpr std::array<std::pair<History::Keep, std::string_view>, 4> kMarks{{{History::Keep::ByAge, ""},
                                                                            {History::Keep::Always, " behold"},
                                                                            {History::Keep::ToMerge, " samles"},
                                                                            {History::Keep::FromCopy, " fra kopi"}}};

constexpr std::size_t kYoung = 20;
constexpr std::string_view kEnding = ".txt";
/// Looks like "-0012 2026-09-05 14.05.30".
constexpr std::string_view kPattern = "-0000 0000-00-00 00.00.00";

std::string_view MarkOf(History::Keep keep) {
    return std::find_if(kMarks.begin(), kMarks.end(), [keep](const auto& mark) { return mark.first == keep; })->second;
}

/// Held while a version is added, so that no two get the same number.
std::mutex taking;

/// The file name without its extension.
std::string Stem(std::string_view name) {
    return NativeText(fs::path(PathOf(name)).stem());
}

std::string VersionName(const std::string& stem, const History::Version& version) {
    char text[64];
    std::snprintf(text, sizeof text, "-%04d %04d-%02d-%02d %02d.%02d.%02d", version.number, version.when.year, version.when.month,
                  version.when.day, version.when.hour, version.when.minute, version.when.second);
    return stem + text + std::string(MarkOf(version.keep)) + std::string(kEnding);
}

int Number(std::string_view text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// Parses the name of a version. Returns nothing if it is not a version of the file `stem`.
std::optional<History::Version> ReadName(std::string_view stem, std::string_view name) {
    if (!name.starts_with(stem) || !name.ends_with(kEnding)) return std::nullopt;
    std::string_view rest = name.substr(stem.size(), name.size() - stem.size() - kEnding.size());
    // The number may have more than four digits, so find where it ends.
    const std::size_t space = rest.find(' ');
    if (!rest.starts_with('-') || space == std::string_view::npos || space < 5) return std::nullopt;
    History::Version version;
    version.number = Number(rest.substr(1, space - 1));
    rest.remove_prefix(space);
    constexpr std::size_t kMoment = kPattern.size() - 5;
    if (rest.size() < kMoment) return std::nullopt;
    version.when = {Number(rest.substr(1, 4)),
                    Number(rest.substr(6, 2)),
                    Number(rest.substr(9, 2)),
                    Number(rest.substr(12, 2)),
                    Number(rest.substr(15, 2)),
                    Number(rest.substr(18, 2)),
                    0};
    const auto mark = std::find_if(kMarks.begin(), kMarks.end(), [&](const auto& known) { return known.second == rest.substr(kMoment); });
    if (mark == kMarks.end()) return std::nullopt;
    version.keep = mark->first;
    return version;
}

void Require(int error) {
    if (error != 0) throw RunTimeError(FailureOf(error));
}

/// Creates the folder with a readme that mentions `elsewhere`, for people who look for a version there and do not find it.
void MakeFolder(const fs::path& folder, const fs::path& elsewhere) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return;
    if (!fs::create_directories(folder, error)) throw RunTimeError(FailureOf(error.value()));
    SyncDirectory(folder.parent_path());
    try {
        WriteWhole(folder / PathOf(kReadMe), ToUtf8(Joined({kReadMeText, NativeText(elsewhere), "\r\n"})));
    } catch (const RunTimeError&) {
        // The readme only explains the folder, so do without it.
        return;
    }
}

}  // namespace

History::History(const fs::path& directory, fs::path elsewhere, std::function<DateTime()> now)
    : beside_(directory / kFolder), elsewhere_(std::move(elsewhere)), now_(std::move(now)) {}

History::Version History::Add(const fs::path& file, Keep keep) {
    return Take(file, keep, Way::LinkOrCopy);
}

History::Version History::AddCopy(const fs::path& file, Keep keep) {
    return Take(file, keep, Way::Copy);
}

History::Version History::Move(const fs::path& file, Keep keep) {
    return Take(file, keep, Way::Move);
}

void History::AddNote(const Version& version, std::string_view text) {
    try {
        fs::path note = version.path;
        note.replace_extension();
        note += " note.txt";
        WriteWhole(note, text);
    } catch (const RunTimeError&) {
        return;
    }
}

void History::MarkMerged(const fs::path& version) {
    std::string name = NativeText(version.filename());
    for (const Keep keep : {Keep::ToMerge, Keep::FromCopy}) {
        const std::size_t mark = name.rfind(MarkOf(keep));
        if (mark == std::string::npos) continue;
        name.replace(mark, MarkOf(keep).size(), MarkOf(Keep::Always));
        RenameFile(version, version.parent_path() / PathOf(name));
        return;
    }
}

History::Version History::AddContent(std::string_view name, std::string_view content, Keep keep) {
    const std::scoped_lock lock(taking);
    return StoreElsewhere(Next(name, keep), name, content);
}

History::Version History::StoreElsewhere(Version version, std::string_view name, std::string_view content) const {
    MakeFolder(elsewhere_, elsewhere_);
    version.path = elsewhere_ / PathOf(VersionName(Stem(name), version));
    WriteWhole(version.path, content);
    return version;
}

History::Version History::Next(std::string_view name, Keep keep) const {
    Version version;
    const std::optional<Version> newest = Newest(name);
    version.number = newest ? newest->number + 1 : 1;
    version.keep = keep;
    version.when = now_();
    return version;
}

bool History::TakeBeside(const fs::path& file, Version& version, Way way) const {
    try {
        MakeFolder(beside_, elsewhere_);
    } catch (const RunTimeError&) {
        return false;
    }
    version.path = beside_ / PathOf(VersionName(NativeText(file.stem()), version));
    if (way == Way::Copy) {
        WriteWhole(version.path, ReadWhole(file));
        return true;
    }
    if ((way == Way::Move ? RenameFile(file, version.path) : LinkFile(file, version.path)) != 0) return false;
    SyncDirectory(beside_);
    if (way == Way::Move) SyncDirectory(file.parent_path());
    return true;
}

History::Version History::Take(const fs::path& file, Keep keep, Way way) {
    const std::scoped_lock lock(taking);
    const std::string name = NativeText(file.filename());
    Version version = Next(name, keep);
    // Never copy into the folder beside the file: the copy would be on the same stick or share. The computer is the safer place.
    if (way != Way::Copy && TakeBeside(file, version, way)) return version;
    version = StoreElsewhere(std::move(version), name, ReadWhole(file));
    if (way == Way::Move) {
        Require(RemoveFile(file));
        SyncDirectory(file.parent_path());
    }
    return version;
}

std::vector<History::Version> History::Versions(std::string_view name) const {
    const std::string stem = Stem(name);
    std::vector<Version> versions;
    for (const fs::path& folder : {beside_, elsewhere_}) {
        std::error_code error;
        for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
            auto version = ReadName(stem, NativeText(entry->path().filename()));
            if (!version) continue;
            version->path = entry->path();
            versions.push_back(*std::move(version));
        }
    }
    std::sort(versions.begin(), versions.end(), [](const Version& a, const Version& b) { return a.number > b.number; });
    return versions;
}

std::optional<History::Version> History::Newest(std::string_view name) const {
    std::vector<Version> versions = Versions(name);
    if (versions.empty()) return std::nullopt;
    return std::move(versions.front());
}

void History::Prune(std::string_view name) const {
    const std::vector<Version> versions = Versions(name);
    std::set<std::tuple<int, int, int, int>> hours;
    for (std::size_t i = kYoung; i < versions.size(); ++i) {
        const DateTime& when = versions[i].when;
        const bool firstOfHour = hours.emplace(when.year, when.month, when.day, when.hour).second;
        if (versions[i].keep == Keep::ByAge && !firstOfHour) RemoveFile(versions[i].path);
    }
}

fs::path HistoryElsewhere(const fs::path& state, const fs::path& directory) {
    std::error_code error;
    const fs::path whole = fs::absolute(directory, error);
    std::string name = ToUtf8(NativeText(whole));
    // Joins all components into one name that people can still read.
    for (char& c : name)
        if (c == '/' || c == '\\' || c == ':') c = '-';
    while (name.starts_with('-')) name.erase(0, 1);
    while (name.ends_with('-')) name.pop_back();
    constexpr std::size_t kLongest = 200;
    if (name.size() > kLongest) name.erase(0, name.size() - kLongest);
    return state / kFolder / PathOfUtf8(name.empty() ? "rod" : name);
}

}  // namespace vatro
