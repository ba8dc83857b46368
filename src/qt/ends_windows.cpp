// SPDX-License-Identifier: MIT
#include <windows.h>

#include <QMetaObject>
#include <QPointer>
#include <functional>
#include <utility>

#include "ends.h"

namespace vatro {

namespace {

/// Milliseconds to wait. The system ends the process when the handler returns, or after some seconds.
constexpr DWORD kPatience = 5000;

QPointer<QObject> context;
std::function<void()> told;

/// Runs on a thread that the system creates.
BOOL WINAPI Tell(DWORD event) {
    QMetaObject::invokeMethod(
        context.data(),
        [] {
            if (told) told();
        },
        Qt::QueuedConnection);
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT) Sleep(kPatience);
    return TRUE;
}

}  // namespace

struct EndSignals::System {};

EndSignals::EndSignals(QObject& object, std::function<void()> told_) {
    context = &object;
    told = std::move(told_);
    SetConsoleCtrlHandler(Tell, TRUE);
}

EndSignals::~EndSignals() {
    SetConsoleCtrlHandler(Tell, FALSE);
    told = nullptr;
    context = nullptr;
}

}  // namespace vatro
