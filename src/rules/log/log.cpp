// SPDX-License-Identifier: MIT
#include "log/log.h"

#include <utility>

#include "errors.h"
#include "numbers.h"

namespace vatro {

const CallColumns& Log::Calls() const {
    calls_.CatchUp(*lines_);
    return calls_;
}

const BaseCalls& Log::StrippedCalls() const {
    strippedCalls_.CatchUp(*lines_);
    return strippedCalls_;
}

void Log::ForgetCalls(std::size_t row) {
    calls_.Forget(row);
    strippedCalls_.Forget(row);
}

void Log::Clear() {
    lines_->clear();
    ForgetCalls(0);
    if (observer_ != nullptr) observer_->Cleared();
}

void Log::Append(std::string line) {
    lines_->push_back(std::move(line));
    if (observer_ != nullptr) observer_->Appended();
}

void Log::Replace(std::size_t row, std::string line) {
    if (row >= lines_->size()) throw RunTimeError(Failure::InvalidCall);
    (*lines_)[row] = std::move(line);
    ForgetCalls(row);
    if (observer_ != nullptr) observer_->Replaced(row);
}

void Log::AddPoints(double points) {
    glPoint = ToInt32(glPoint + points);
}

}  // namespace vatro
