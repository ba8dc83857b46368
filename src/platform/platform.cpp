// SPDX-License-Identifier: MIT
#include "platform.h"

#include <cassert>
#include <optional>

namespace vatro {

namespace {
std::optional<Platform> installed;
}

const Platform& platform() {
    assert(installed);
    return *installed;
}

void InstallPlatform(const Platform& services) {
    // The argument may refer to the services that are installed now.
    const Platform copy = services;
    installed.emplace(copy);
}

void MsgBox(std::string_view text) {
    MessageBox box;
    box.text = text;
    MsgBox(box);
}

Answer MsgBox(const MessageBox& box) {
    return platform().dialogs.Show(box);
}

}  // namespace vatro
