// SPDX-License-Identifier: MIT
#include "open_file.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

namespace vatro {

namespace {

using namespace std::chrono_literals;

/// A starter that fails does so within this time. On some desktops it runs until the program that it has started ends.
constexpr std::chrono::milliseconds kStart = 15s;

}  // namespace

void OpenWithDesktop(const QUrl& url, const std::function<void()>& failed) {
    // Qt starts the same command, but does not wait for its answer, and so takes a command that finds no program for a success.
    const QString starter = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (starter.isEmpty()) {
        if (!QDesktopServices::openUrl(url)) failed();
        return;
    }
    // Without a parent, because deleting a process ends the program that shows the file.
    auto* process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer started;
    started.start();
    QObject::connect(process, &QProcess::errorOccurred, process, [process, failed](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        process->deleteLater();
        failed();
    });
    QObject::connect(process, &QProcess::finished, process, [process, failed, started](int code, QProcess::ExitStatus status) {
        process->deleteLater();
        if ((code != 0 || status != QProcess::NormalExit) && !started.hasExpired(kStart.count())) failed();
    });
    process->start(starter, {url.isLocalFile() ? url.toLocalFile() : url.toString()});
}

}  // namespace vatro
