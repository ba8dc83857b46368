// SPDX-License-Identifier: MIT
#include "deliver.h"

#include <utility>
#include <vector>

#include "program.h"

namespace vatro {

namespace {

/// The loops that are running; the innermost is last.
std::vector<WaitLoop*> waiting;

/// Number of nested events that are running.
int depth = 0;
std::function<void()> afterHandlers;

}  // namespace

void Deliver(const std::function<void()>& event) {
    ++depth;
    Dispatch(event);
    --depth;
    WaitLoop::Look();
    if (depth == 0 && afterHandlers) afterHandlers();
}

void SetAfterHandlers(std::function<void()> what) {
    afterHandlers = std::move(what);
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
