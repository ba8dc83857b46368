// SPDX-License-Identifier: MIT
#include "log/log.h"

#include <utility>

#include "errors.h"
#include "numbers.h"

namespace vatro {

void Log::Clear() {
    ++revision_;
    lines_->clear();
    if (observer_ != nullptr) observer_->Cleared();
}

void Log::Append(std::string line) {
    ++revision_;
    lines_->push_back(std::move(line));
    if (observer_ != nullptr) observer_->Appended();
}

void Log::Replace(std::size_t row, std::string line) {
    if (row >= lines_->size()) throw RunTimeError(Failure::InvalidCall);
    ++revision_;
    (*lines_)[row] = std::move(line);
    if (observer_ != nullptr) observer_->Replaced(row);
}

void Log::AddPoints(double points) {
    glPoint = ToInt32(glPoint + points);
}

}  // namespace vatro
