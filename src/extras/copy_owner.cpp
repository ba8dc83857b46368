// SPDX-License-Identifier: MIT
#include "copy_owner.h"

#include <unordered_set>

#include "errors.h"
#include "frame/log_file.h"
#include "log_text.h"
#include "whole_file.h"

namespace vatro {

namespace fs = std::filesystem;

std::size_t SharedContacts(const std::vector<std::string_view>& lines, const std::vector<std::string_view>& others) {
    const std::unordered_set<std::string_view> known(others.begin(), others.end());
    std::size_t shared = 0;
    for (const std::string_view line : lines)
        if (IsContact(line) && known.contains(line)) ++shared;
    return shared;
}

CopyOwner OwnerOf(const std::vector<std::string_view>& lines, const fs::path& directory) {
    CopyOwner owner;
    std::size_t most = 0;
    for (const auto& [band, mode] : kTenLogs) {
        const fs::path log = directory / LogName(band, mode);
        try {
            std::error_code error;
            if (!fs::exists(log, error)) continue;
            std::string content = ReadWhole(log);
            const std::size_t shared = SharedContacts(lines, ReadLogText(content).lines);
            if (shared <= most) continue;
            most = shared;
            owner = {log, std::move(content)};
        } catch (const RunTimeError&) {
            continue;
        }
    }
    return owner;
}

}  // namespace vatro
