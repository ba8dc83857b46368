// SPDX-License-Identifier: MIT
#include "frame/station.h"
#include "frame/state.h"

#include "numbers.h"
#include "platform.h"

namespace vatro {

int UtcOffset() {
    return ToInt16(ToNumber(desk().gsUTC));
}

DateTime UtcNow() {
    return AddHours(platform().clock.Now(), UtcOffset());
}

std::string UtcTimeText() {
    return FormatTime(UtcNow());
}

std::string PathIn(const std::string& directory, std::string_view name) {
    std::string path = directory;
    path += platform().files.Separator();
    path += name;
    return path;
}

std::string DirectoryOf(const std::string& path) {
    const std::size_t separator = path.find_last_of(platform().files.Separator());
    if (separator == std::string::npos) throw RunTimeError(Failure::InvalidCall);
    return path.substr(0, separator);
}

std::string ChooseMarkerFile(std::string_view name, std::string_view title) {
    FileDialog dialog;
    dialog.fileName = name;
    dialog.title = title;
    dialog.filter = std::string(name) + " (*.txt)|*.txt";
    dialog.defaultExtension = "txt";
    dialog.overwritePrompt = true;
    dialog.markerFile = true;
    return platform().dialogs.SaveFile(dialog);
}

}  // namespace vatro
