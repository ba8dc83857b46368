// SPDX-License-Identifier: MIT
//
// Smaller services of the desktop: where the settings lie, one running copy for each user, and the help viewer.
#pragma once

#include <QLockFile>
#include <filesystem>
#include <memory>

#include "platform.h"

namespace vatro {

class HelpWindow;

/// The settings file of this user, in the place that the desktop has for such files.
std::filesystem::path SettingsPath();

/// A lock in the user's runtime directory. The lock of a copy that was killed is known as such and taken over.
class QtInstance : public Instance {
public:
    QtInstance();
    explicit QtInstance(const QString& lockFile);
    bool AnotherCopyRuns() override;

private:
    QLockFile lock_;
};

/// The help viewer, a window of the program's own that stays open beside the others. Whatever file is named, it shows the
/// handbook at its table of contents.
class QtHelp : public Help {
public:
    QtHelp();
    ~QtHelp() override;
    void Show(std::string_view path) override;
    /// The window, if it has been opened.
    HelpWindow* Window() const { return window_.get(); }

private:
    std::unique_ptr<HelpWindow> window_;
};

}  // namespace vatro
