// SPDX-License-Identifier: MIT
#include "deliver.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "program.h"

namespace vatro {

namespace {

/// The loops that are running; the innermost is last.
std::vector<WaitLoop*> waiting;

/// Number of nested events that are running.
int depth = 0;
std::vector<AfterHandlers*> afterHandlers;

}  // namespace

void Deliver(const std::function<void()>& event) {
    ++depth;
    Dispatch(event);
    --depth;
    WaitLoop::Look();
    if (depth > 0) return;
    const std::vector<AfterHandlers*> all = afterHandlers;
    for (const AfterHandlers* one : all)
        if (std::ranges::find(afterHandlers, one) != afterHandlers.end()) one->what_();
}

AfterHandlers::AfterHandlers(std::function<void()> what) : what_(std::move(what)) {
    afterHandlers.push_back(this);
}

AfterHandlers::~AfterHandlers() {
    std::erase(afterHandlers, this);
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
