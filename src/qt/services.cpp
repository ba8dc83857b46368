// SPDX-License-Identifier: MIT
#include "services.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include "handbook.h"
#include "help_window.h"

namespace vatro {

namespace {

QString LockPath() {
    QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty()) directory = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QDir().mkpath(directory);
    return directory + QStringLiteral("/vatro.lock");
}

}  // namespace

std::filesystem::path SettingsPath() {
    const QSettings place(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vatro"), QStringLiteral("vatro"));
    return place.fileName().toStdU16String();
}

QtInstance::QtInstance() : QtInstance(LockPath()) {}

QtInstance::QtInstance(const QString& lockFile) : lock_(lockFile) {
    // A log may be open for days, so a lock becomes stale only when its process no longer exists.
    lock_.setStaleLockTime(0);
}

bool QtInstance::AnotherCopyRuns() {
    if (lock_.isLocked() || lock_.tryLock(0)) return false;
    // If the lock file cannot be created, let the program run anyway.
    return lock_.error() == QLockFile::LockFailedError;
}

QtHelp::QtHelp() = default;

QtHelp::~QtHelp() = default;

void QtHelp::Show(std::string_view /*path*/) {
    const QString contents = QStringLiteral("indhold.html");
    if (!QFile::exists(HandbookFile(contents))) throw RunTimeError(Failure::FileNotFound);
    ShowPage(contents, nullptr);
}

void QtHelp::ShowPage(const QString& page, QWidget* modal) {
    if (modal != nullptr) {
        auto* above = modal->findChild<HelpWindow*>({}, Qt::FindDirectChildrenOnly);
        if (above == nullptr) above = new HelpWindow(modal);
        above->ShowPage(page);
        return;
    }
    if (!window_) window_ = std::make_unique<HelpWindow>();
    window_->ShowPage(page);
}

}  // namespace vatro
