// SPDX-License-Identifier: MIT
#include "safety.h"

#include <QMessageBox>
#include <memory>
#include <utility>

#include "codepage.h"
#include "deliver.h"
#include "dialogs.h"
#include "entry/next_contact.h"
#include "frame/log_file.h"
#include "frame/settings_table.h"
#include "frame/start.h"
#include "frame/state.h"
#include "names.h"
#include "program.h"
#include "recovery_window.h"
#include "system_file.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

/// Reads a setting before the program has read its settings.
std::string Read(Settings& settings, const TextSetting& row) {
    return settings.Read(row.section, row.readKey).value_or(std::string(row.fallback));
}

bool GoOnInASilentDirectory() {
    MessageBox question;
    question.text =
        "Vatro på en anden maskine har ikke givet logbiblioteket fri, men har ikke rørt det i et minut.\r\n\r\n"
        "Kører den ikke mere, så svar Ja. Kører den, så svar Nej: ellers bliver de samme numre givet to gange.\r\n\r\n"
        "Fortsætter du?"_t;
    question.title = "Logbiblioteket er måske i brug"_t;
    question.buttons = Buttons::YesNo;
    question.icon = Icon::Question;
    question.defaultNo = true;
    return MsgBox(question) == Answer::Yes;
}

}  // namespace

Safety::Safety(Files& disk, Clock& clock, Settings& settings, Instance& perUser)
    : settings_(settings), clock_(clock), perUser_(perUser), files_(disk, Surroundings()) {}

SafeFiles::Surroundings Safety::Surroundings() {
    SafeFiles::Surroundings surroundings;
    surroundings.now = [this] { return clock_.Now(); };
    surroundings.tellTaken = [] { ShowAlreadyRunning(); };
    surroundings.askSilent = GoOnInASilentDirectory;
    surroundings.saved = [this](std::string_view line) {
        if (saved) saved(line);
    };
    surroundings.corrected = [this](std::string_view line) {
        if (corrected) corrected(line);
    };
    surroundings.notSaved = [this](const fs::path& file, Failure failure) {
        if (notSaved) notSaved(file, failure);
    };
    surroundings.writeBegins = [this] {
        if (writeBegins) writeBegins();
    };
    surroundings.writeEnded = [this](const fs::path& log) {
        if (writeEnded) writeEnded(log);
    };
    // The program stores the directory at its end. A power cut on the first day would make the next start ask for it again.
    surroundings.directoryChosen = [this](std::string_view directory) {
        settings_.Write(setting::kLogDirectory.section, setting::kLogDirectory.writeKey, directory);
    };
    surroundings.directoryWon = [this](const fs::path& directory) { LookThrough(directory); };
    return surroundings;
}

bool Safety::BothLocks::AnotherCopyRuns() {
    if (safety_.perUser_.AnotherCopyRuns()) return true;
    return !safety_.files_.TakeDirectory(Read(safety_.settings_, setting::kLogDirectory));
}

RecoveryPlaces Safety::PlacesOf(const fs::path& directory) {
    RecoveryPlaces places;
    places.logs = directory;
    const std::string tables = Read(settings_, setting::kTablesDirectory);
    places.tables = NativePath(tables.empty() ? files_.CurrentDirectory() : tables);
    places.firstLog = Read(settings_, setting::kBand) + Read(settings_, setting::kMode);
    places.now = clock_.Now();
    return places;
}

void Safety::LookThrough(const fs::path& directory) {
    History history = files_.HistoryOf(directory);
    const std::vector<fs::path> left = Recover(PlacesOf(directory), history);
    for (const fs::path& log : left) files_.ToldOfDamage(log);
}

void Safety::OfferCopy() {
    const fs::path directory = FindPath(NativePath(desk().gsLogLib)).path;
    const fs::path log = FindPath(NativePath(CurrentLogPath())).path;
    const auto content = [&log] { return IsNoFile(log) || !IdentityOf(log) ? std::string() : ReadWhole(log); };
    const std::string before = content();
    History history = files_.HistoryOf(directory);
    Recover(PlacesOf(directory), history, RecoveryScope::SecondCopy);
    if (content() == before) return;
    IndlæsLogfil();
    ResetQSO();
}

void Safety::HandlersAreOver() {
    files_.CloseLeftovers();
    if (telling_ || !ProgramRuns()) return;
    TellRest();
}

void Safety::TellRest() {
    telling_ = true;
    for (const std::string& notice : files_.TakeNotices()) {
        MessageBox box;
        box.text = notice;
        box.title = "Vatro - loggen"_t;
        box.icon = Icon::Exclamation;
        const std::unique_ptr<QMessageBox> made(MakeBox(box, DialogOwner()));
        RunDialog(*made);
    }
    telling_ = false;
}

}  // namespace vatro
