// SPDX-License-Identifier: MIT
//
// Opens a file or directory with the program that the desktop has for it.
#pragma once

#include <QUrl>
#include <functional>

namespace vatro {

/// Calls `failed` if nothing opens it, perhaps only after this function has returned. A program that ends with an error long after it
/// was started has opened it.
void OpenWithDesktop(const QUrl& url, const std::function<void()>& failed);

}  // namespace vatro
