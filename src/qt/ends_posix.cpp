// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

#include "ends.h"

namespace vatro {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

/// The end of the pipe that the signal handler writes to.
int told = -1;

/// The signal handler; may only use async-signal-safe functions.
void Tell(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    // If the pipe is full, the signal has already been reported.
    static_cast<void>(write(told, &byte, 1) == 1);
    errno = error;
}

}  // namespace

struct EndSignals::System {
    std::array<int, 2> pipe{-1, -1};
    std::array<struct sigaction, kSignals.size()> before{};
    std::unique_ptr<QSocketNotifier> notifier;
};

EndSignals::EndSignals(QObject& context, std::function<void()> told_) : system_(std::make_unique<System>()) {
    if (pipe(system_->pipe.data()) != 0) return;
    for (const int end : system_->pipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    told = system_->pipe[1];
    system_->notifier = std::make_unique<QSocketNotifier>(system_->pipe[0], QSocketNotifier::Read);
    QObject::connect(system_->notifier.get(), &QSocketNotifier::activated, &context, [from = system_->pipe[0], told_] {
        std::array<char, 16> bytes{};
        while (read(from, bytes.data(), bytes.size()) > 0) continue;
        told_();
    });
    struct sigaction action {};
    action.sa_handler = Tell;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], nullptr, &system_->before[i]);
        // An ignored signal stays ignored: a program started with nohup is meant to go on.
        if (system_->before[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    if (told < 0) return;
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &system_->before[i], nullptr);
    told = -1;
    system_->notifier.reset();
    for (const int end : system_->pipe) close(end);
}

}  // namespace vatro
