// SPDX-License-Identifier: MIT
#include "qt/deliver.h"

#include <vector>

#include "platform/program.h"

namespace vatro {

namespace {

/// The loops that run, the innermost at the end.
std::vector<WaitLoop*> waiting;

}  // namespace

void Deliver(const std::function<void()>& event) {
    Dispatch(event);
    WaitLoop::Look();
}

bool WaitLoop::Over() const {
    return ProgramEnding() || over_();
}

void WaitLoop::Run() {
    if (Over()) return;
    waiting.push_back(this);
    loop_.exec();
    waiting.pop_back();
}

void WaitLoop::Look() {
    for (WaitLoop* loop : waiting)
        if (loop->Over()) loop->loop_.quit();
}

}  // namespace vatro
