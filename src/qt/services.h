// SPDX-License-Identifier: MIT
//
// Smaller services of the desktop: the location of the settings, the lock for one running copy per user, and the help viewer.
#pragma once

#include <QLockFile>
#include <filesystem>
#include <memory>

#include "platform.h"

class QWidget;

namespace vatro {

class HelpWindow;

/// This user's settings file, in the desktop's standard location.
std::filesystem::path SettingsPath();

/// A lock in the user's runtime directory. The lock of a copy that was killed is recognised as stale and taken over.
class QtInstance : public Instance {
public:
    QtInstance();
    explicit QtInstance(const QString& lockFile);
    bool AnotherCopyRuns() override;

private:
    QLockFile lock_;
};

/// The help viewer: a window of the program that stays open beside the others. It always shows the handbook at its table of contents,
/// whatever file is named.
class QtHelp : public Help {
public:
    QtHelp();
    ~QtHelp() override;
    void Show(std::string_view path) override;
    /// Opens the handbook at this page. While a modal window is open no other window gets keys, so then the handbook is a window of its
    /// own above `modal`, and goes with it.
    void ShowPage(const QString& page, QWidget* modal);
    /// The window, or null if it has not been opened.
    HelpWindow* Window() const { return window_.get(); }

private:
    std::unique_ptr<HelpWindow> window_;
};

}  // namespace vatro
