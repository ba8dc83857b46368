// SPDX-License-Identifier: MIT
#include "system_file.h"

#include <utility>

namespace vatro {

SystemFile::SystemFile(SystemFile&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, kNone);
    }
    return *this;
}

SystemFile::~SystemFile() {
    Close();
}

}  // namespace vatro
