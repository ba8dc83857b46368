// SPDX-License-Identifier: MIT
#include "recovery.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "codepage.h"
#include "copy_owner.h"
#include "errors.h"
#include "joined.h"
#include "log/contact_line.h"
#include "log/ten_logs.h"
#include "names.h"
#include "system_file.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCopy = "FDkopi.txt";
constexpr std::size_t kMostStations = 200;

struct Log {
    fs::path path;
    std::string name;
    std::string_view mode;
    bool exists = false;
    std::string content;
    LogText text;
};

std::string Count(std::size_t count, std::string_view one, std::string_view many) {
    return Joined({std::to_string(count), " ", count == 1 ? one : many});
}

std::string Contacts(std::size_t count) {
    return Count(count, "kontakt", "kontakter");
}

class Search {
public:
    Search(const RecoveryPlaces& places, const History& history) : places_(places), history_(history) {}

    std::vector<Finding> Run() {
        std::error_code error;
        if (!fs::is_directory(places_.logs, error)) {
            Tell(NativeText(places_.logs), "Logbiblioteket findes ikke. Loggene ser tomme ud, og den første kontakt stopper programmet."_t,
                 "Afslut, sæt disken eller USB-nøglen til, og start igen."_t);
            LookAtTables();
            return std::move(findings_);
        }
        ReadLogs();
        LookAtCopy();
        for (const Log& log : logs_) LookAtLog(log);
        LookAtTables();
        return std::move(findings_);
    }

private:
    void ReadLogs() {
        logs_.reserve(kTenLogs.size());
        for (const auto& [band, mode] : kTenLogs) {
            Log log;
            log.name = LogName(band, mode);
            log.mode = mode;
            log.path = FindPath(places_.logs / log.name).path;
            Read(log);
            logs_.push_back(std::move(log));
            // Parse the content only at its final place: the views refer to it, and moving a short string moves its characters.
            logs_.back().text = ReadLogText(logs_.back().content);
        }
    }

    void Read(Log& log) {
        std::error_code error;
        log.exists = fs::exists(log.path, error);
        if (!log.exists) return;
        try {
            log.content = ReadWhole(log.path);
        } catch (const RunTimeError& failure) {
            Tell(log.name, Joined({"Filen kan ikke læses (fejl "_t, std::to_string(failure.Number()), "). Loggen vil se tom ud."_t}),
                 "Se, om disken er sat rigtigt til, eller om filen tilhører en anden bruger."_t);
        }
    }

    Finding& Add(Finding::Action action, std::string_view file) {
        Finding& finding = findings_.emplace_back();
        finding.action = action;
        finding.file = file;
        return finding;
    }

    void Tell(std::string_view file, std::string_view what, std::string_view todo) {
        Finding& finding = Add(Finding::Action::None, file);
        finding.what = what;
        finding.proposal = todo;
    }

    // --- The copy

    void LookAtCopy() {
        const fs::path path = FindPath(places_.logs / kCopy).path;
        std::error_code error;
        if (IsNoFile(path) || fs::file_size(path, error) == 0 || error) return;
        std::string content;
        try {
            content = ReadWhole(path);
        } catch (const RunTimeError&) {
            return;
        }
        const LogText copy = ReadLogText(content);
        if (copy.lines.empty()) return;
        const Log* owner = OwnerByLog(copy);
        if (owner != nullptr) return CompareCopy(path, copy, *owner);
        CopyWithoutOwner(path, copy);
    }

    const Log* OwnerByLog(const LogText& copy) const {
        const Log* owner = nullptr;
        std::size_t most = 0;
        for (const Log& log : logs_) {
            const std::size_t shared = SharedContacts(copy.lines, log.text.lines);
            if (shared <= most) continue;
            most = shared;
            owner = &log;
        }
        return owner;
    }

    void CompareCopy(const fs::path& path, const LogText& copy, const Log& log) {
        const std::vector<std::string_view> missing = MissingContacts(copy.lines, log.text.lines);
        const bool oneCorrection = IsCorrection(log.text.lines, copy.lines);
        if (missing.empty() || oneCorrection) {
            // The copy equals the log or its beginning: nothing to report.
            if (GoesOn(copy.lines, log.text.lines) && IsPrefix(copy.lines, log.text.lines)) return;
            Finding& finding = Add(Finding::Action::KeepCopy, log.name);
            finding.what = Joined({"En rettelse blev afbrudt, før den var gemt. Loggen er, som den var før rettelsen."_t});
            finding.proposal = "Loggen bliver, som den er. Den afbrudte rettelse lægges i historikken; ret kontakten igen."_t;
            Fill(finding, copy, path, log.path);
            return;
        }
        Finding& finding = Add(Finding::Action::MergeCopy, log.name);
        finding.what = Joined({"FDkopi.txt fra en afbrudt rettelse har "_t, Contacts(missing.size()), ", som loggen ikke har."_t});
        finding.proposal = "Kontakterne sættes ind i loggen på deres plads. Loggen, som den er nu, lægges i historikken."_t;
        Fill(finding, copy, path, log.path);
    }

    static bool IsPrefix(const std::vector<std::string_view>& lines, const std::vector<std::string_view>& of) {
        return lines.size() <= of.size() && std::equal(lines.begin(), lines.end(), of.begin());
    }

    void CopyWithoutOwner(const fs::path& path, const LogText& copy) {
        const std::string_view mode = ModeOf(copy);
        std::vector<const Log*> fitting;
        for (const Log& log : logs_)
            if (log.mode == mode) fitting.push_back(&log);
        const Log* likely = IsOld(copy.lines, places_.now) ? nullptr : Likely(copy, fitting);
        if (likely == nullptr) {
            Finding& finding = Add(Finding::Action::KeepCopy, kCopy);
            finding.what = "Kopien fra en afbrudt rettelse ligger her, men ingen log passer til den."_t;
            finding.proposal = "Den lægges i historikken. Vælg loggen, hvis du ved, hvilken den hører til."_t;
            Fill(finding, copy, path, {});
            for (const Log* log : fitting) finding.candidates.push_back(log->name);
            finding.candidates.insert(finding.candidates.begin(), std::string());
            return;
        }
        const bool missing = !likely->exists || likely->text.lines.empty();
        Finding& finding = Add(missing ? Finding::Action::CopyBecomesLog : Finding::Action::MergeCopy, likely->name);
        finding.what = missing ? "Loggen mangler. FDkopi.txt fra en afbrudt rettelse har den."_t
                               : "FDkopi.txt fra en afbrudt rettelse har kontakter, som ingen log har."_t;
        finding.proposal = missing ? "Kopien bliver loggen."_t
                                   : "Kopiens kontakter sættes ind foran loggens. Loggen, som den er nu, lægges i historikken."_t;
        Fill(finding, copy, path, likely->path);
        finding.candidates.push_back(likely->name);
        for (const Log* log : fitting)
            if (log != likely) finding.candidates.push_back(log->name);
    }

    /// The log that most likely belongs to the copy: one whose newest version shares contacts with it, or else the log that the program
    /// starts with, or else the only missing log of the same mode. Null if none of these exists.
    const Log* Likely(const LogText& copy, const std::vector<const Log*>& fitting) const {
        for (const Log* log : fitting) {
            const auto newest = history_.Newest(log->name);
            if (newest && SharesContacts(copy, newest->path)) return log;
        }
        std::vector<const Log*> missing;
        for (const Log* log : fitting) {
            if (log->name == Joined({"FD", places_.firstLog, ".txt"})) return log;
            if (!log->exists) missing.push_back(log);
        }
        return missing.size() == 1 ? missing.front() : nullptr;
    }

    static bool SharesContacts(const LogText& copy, const fs::path& version) {
        try {
            const std::string content = ReadWhole(version);
            return SharedContacts(copy.lines, ReadLogText(content).lines) > 0;
        } catch (const RunTimeError&) {
            return false;
        }
    }

    static std::string_view ModeOf(const LogText& copy) {
        for (const std::string_view line : copy.lines)
            // The report in an SSB log has two digits and a blank.
            if (IsContact(line)) return kReportSent.Of(line).ends_with(' ') ? "SSB" : "CW";
        return "SSB";
    }

    static void Fill(Finding& finding, const LogText& source, const fs::path& path, const fs::path& log) {
        finding.found = Summarise(source.lines);
        finding.source = path;
        finding.log = log;
    }

    // --- The logs

    void LookAtLog(const Log& log) {
        if (IsNoLog(log.text, log.content)) {
            Tell(log.name, "Filen er ingen log, som programmet kan læse. Den er måske gemt i et andet tegnsæt."_t,
                 "Gem den i tegnsættet Windows-1252, eller hent den fra en backup, før I logger på båndet."_t);
            return;
        }
        if (log.text.damagedInside > 0)
            Tell(log.name,
                 Joined({"Midt i loggen er "_t, Count(log.text.damagedInside, "linje", "linjer"),
                         " ødelagt. Det, der ikke kan læses, vises ikke."_t}),
                 "Hent de manglende kontakter fra en backup eller fra historik."_t);
        if (SystemFile file; log.exists && !IsNoFile(log.path) && file.Open(log.path, SystemFile::Access::Write, false) != 0)
            Tell(log.name, "Loggen kan læses, men ikke skrives. Den første kontakt stopper programmet."_t,
                 "Giv brugeren ret til at skrive i filen."_t);
        if (log.text.damagedFrom < log.content.size() && !Mentioned(log.name)) {
            Finding& finding = Add(Finding::Action::CutEnd, log.name);
            finding.what = Joined({"Sidst i loggen står "_t, std::to_string(log.content.size() - log.text.damagedFrom),
                                   " tegn, som ikke er en hel linje, efter en strømafbrydelse eller en fejl på disken."_t});
            finding.proposal = "De fjernes fra loggen. Hele filen lægges i historikken."_t;
            Fill(finding, log.text, log.path, log.path);
        }
        CompareWithHistory(log);
        if (const std::size_t line = UnreadableLine(log.text.lines); line > 0)
            Tell(log.name,
                 Joined({"Linje "_t, std::to_string(line), " har et tal, der er for stort. Programmet læser kun loggen til den linje."_t}),
                 "Ret tallet i filen med et tekstprogram, før I logger på båndet."_t);
    }

    void CompareWithHistory(const Log& log) {
        if (Mentioned(log.name)) return;
        const std::vector<History::Version> versions = history_.Versions(log.name);
        // A version marked for merging stays marked until it has been merged, no matter how many corrections have been made since.
        for (const History::Version& version : versions)
            if (IsToMerge(version) && CompareWith(log, version)) return;
        if (!versions.empty() && !IsToMerge(versions.front())) CompareWith(log, versions.front());
    }

    static bool IsToMerge(const History::Version& version) {
        return version.keep == History::Keep::ToMerge || version.keep == History::Keep::FromCopy;
    }

    /// Adds a finding if the version has contacts that the log lacks. Returns whether it has added one.
    bool CompareWith(const Log& log, const History::Version& version) {
        if (!log.exists && !IsYoung(version.when, places_.now)) return false;
        std::string content;
        try {
            content = ReadWhole(version.path);
        } catch (const RunTimeError&) {
            return false;
        }
        const LogText text = ReadLogText(content);
        if (GoesOn(text.lines, log.text.lines)) return false;
        const std::vector<std::string_view> missing = MissingContacts(text.lines, log.text.lines);
        if (missing.empty()) return false;
        const bool unseen = IsToMerge(version);
        Finding& finding = Add(!log.exists ? Finding::Action::Restore
                               : unseen    ? Finding::Action::MergeVersion
                                           : Finding::Action::PutBeside,
                               log.name);
        const std::string count = Contacts(missing.size());
        finding.fromCopy = version.keep == History::Keep::FromCopy;
        if (!log.exists && finding.fromCopy) {
            finding.what = "Loggen mangler. Den løbende kopi har den."_t;
            finding.proposal = "Loggen hentes fra kopien."_t;
        } else if (finding.fromCopy) {
            finding.what = Joined({"Den løbende kopi har "_t, count, ", som loggen ikke har."_t});
            finding.proposal = "De sættes ind i loggen på deres plads. Loggen, som den er nu, lægges i historikken."_t;
        } else if (!log.exists) {
            finding.what = "Loggen mangler. Historikken har den, som den var før den sidste rettelse."_t;
            finding.proposal = "Loggen hentes fra historikken."_t;
        } else if (unseen) {
            finding.what = Joined({"Historikken har "_t, count, ", som programmet ikke havde læst, da loggen blev skrevet forfra."_t});
            finding.proposal = "De sættes ind i loggen på deres plads. Loggen, som den er nu, lægges i historikken."_t;
        } else {
            finding.what = Joined({"Loggen har ikke "_t, count, ", som den seneste udgave i historikken har."_t});
            finding.proposal = "Loggen bliver, som den er. Udgaven med flere kontakter lægges ved siden af."_t;
        }
        Fill(finding, text, version.path, log.path);
        return true;
    }

    bool Mentioned(std::string_view name) const {
        return std::any_of(findings_.begin(), findings_.end(), [&](const Finding& finding) {
            return finding.file == name && finding.action != Finding::Action::CutEnd && finding.action != Finding::Action::None &&
                   finding.action != Finding::Action::KeepCopy;
        });
    }

    // --- Other files that the program needs

    void LookAtTables() {
        for (const std::string_view table : {"lande.txt", "refpfx.txt"}) {
            if (CountLines(table) > 0) continue;
            Tell(table, "Tabellen mangler eller er tom. Alle lande er ukendte, og alle kontakter giver 0 point."_t,
                 "Læg filen tilbage, eller vælg Funktioner, Importer CTY.DAT..."_t);
        }
        if (CountLines("edr.txt") > kMostStations)
            Tell("edr.txt", "Filen har over 200 stationer. Programmet bruger de første 200."_t, "Gør filen kortere."_t);
        const fs::path operators = FindPath(places_.tables / "operator.txt").path;
        SystemFile file;
        std::error_code error;
        if (fs::exists(operators, error) && !IsNoFile(operators) && file.Open(operators, SystemFile::Access::Write, false) != 0)
            Tell("operator.txt", "Listen over operatører kan ikke skrives. Programmet stopper, når operatørfeltet forlades."_t,
                 "Giv brugeren ret til at skrive i filen."_t);
    }

    /// Counts lines, stopping at one more than the maximum number of stations.
    std::size_t CountLines(std::string_view name) const {
        try {
            const std::string content = ReadWhole(FindPath(places_.tables / name).path);
            std::size_t lines = 0;
            for (std::size_t at = 0; at < content.size() && lines <= kMostStations; ++lines) {
                const std::size_t end = content.find('\n', at);
                at = end == std::string::npos ? content.size() : end + 1;
            }
            return lines;
        } catch (const RunTimeError&) {
            return 0;
        }
    }

    const RecoveryPlaces& places_;
    const History& history_;
    std::vector<Log> logs_;
    std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> LookForDamage(const RecoveryPlaces& places, const History& history) {
    return Search(places, history).Run();
}

}  // namespace vatro
