// SPDX-License-Identifier: MIT
#include "ask_at_first_start.h"

#include <QDateTime>
#include <QDir>
#include <filesystem>
#include <string>
#include <utility>

#include "clock.h"
#include "codepage.h"
#include "columns.h"
#include "dialogs.h"
#include "first_page.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "names.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

void StoreAnswers(const FirstAnswers& answers, const std::string& directory) {
    const SettingsBatch together(platform().settings);
    StoreSetting(setting::kMyCall, answers.call);
    StoreSetting(setting::kContestClass, std::string(1, answers.contestClass));
    StoreSetting(setting::kTelephone, answers.telephone);
    StoreSetting(setting::kLastOperator, FixedText<kOperatorLength>(answers.operatorCall).Padded());
    StoreSetting(setting::kUtc, PlainNumber(answers.offset));
    StoreSetting(setting::kLogDirectory, directory);
}

/// The answers that the page begins with. Settings that somebody has prepared are kept.
FirstAnswers Proposed(const std::filesystem::path& home) {
    const DateTime local = platform().clock.Now();
    FirstAnswers answers;
    answers.contestClass = ReadSetting(setting::kContestClass) == "B" ? 'B' : 'A';
    answers.telephone = platform().settings.Read(setting::kTelephone.section, setting::kTelephone.readKey).value_or("");
    answers.operatorCall = FixedText<kOperatorLength>(ReadSetting(setting::kLastOperator)).Trimmed();
    answers.directory = ProposedLogDirectory(home, local);
    const auto offset = platform().settings.Read(setting::kUtc.section, setting::kUtc.readKey);
    answers.offset = offset && IsNumeric(*offset) ? static_cast<int>(NumericValue(*offset))
                                                  : ProposedOffset(local, FromQtTime(QDateTime::currentDateTimeUtc()));
    return answers;
}

/// Empty if the operator has cancelled.
std::string ChosenDirectory() {
    try {
        return ToUtf8(DirectoryOf(ChooseMarkerFile("setlog.txt", "Vælg eller opret logbibliotek"_t)));
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace

void AskAtFirstStart() {
    if (!IsFirstStart(ReadSetting(setting::kLogDirectory), ReadSetting(setting::kMyCall)) || platform().instance.AnotherCopyRuns()) return;
    const std::filesystem::path home = QDir::homePath().toStdU16String();
    const std::string tables = ReadSetting(setting::kTablesDirectory);
    FirstPage::Surroundings surroundings;
    surroundings.home = home;
    surroundings.tables = NativePath(tables.empty() ? platform().files.CurrentDirectory() : tables);
    surroundings.now = [] { return platform().clock.Now(); };
    surroundings.chooseDirectory = ChosenDirectory;
    FirstPage page(Proposed(home), std::move(surroundings));
    if (!RunDialog(page) || page.result() != QDialog::Accepted) return;
    const FirstAnswers answers = page.Answers();
    StoreAnswers(answers, LogDirectorySetting(answers, home));
}

}  // namespace vatro
