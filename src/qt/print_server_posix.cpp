// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QProcess>

#include "print_server.h"

namespace vatro {

namespace {

constexpr int kAnswerPatience = 2000;
constexpr int kAfterKill = 100;

}  // namespace

bool PrintServerAnswers() {
    QProcess asking;
    asking.setStandardInputFile(QProcess::nullDevice());
    asking.setStandardOutputFile(QProcess::nullDevice());
    asking.setStandardErrorFile(QProcess::nullDevice());
    asking.start(QCoreApplication::applicationDirPath() + QStringLiteral("/vatro-printers"), {});
    if (asking.waitForFinished(kAnswerPatience)) return asking.exitStatus() == QProcess::NormalExit && asking.exitCode() == 0;
    // vatro-printers is missing, so nothing can ask first. Risk waiting for the server rather than not printing at all.
    if (asking.error() == QProcess::FailedToStart) return true;
    asking.kill();
    asking.waitForFinished(kAfterKill);
    return false;
}

}  // namespace vatro
