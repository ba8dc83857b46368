// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "history.h"

namespace vatro {

namespace fs = std::filesystem;

fs::path StateDirectory() {
    const wchar_t* local = _wgetenv(L"LOCALAPPDATA");
    if (local != nullptr && *local != L'\0') return fs::path(local) / "vatro";
    std::error_code error;
    return fs::temp_directory_path(error) / "vatro";
}

}  // namespace vatro
