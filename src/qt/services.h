// SPDX-License-Identifier: MIT
//
// Smaller services of the desktop: one running copy for each user, and the help viewer.
#pragma once

#include <QLockFile>

#include "platform/platform.h"

namespace vatro {

/// A lock in the user's runtime directory. The lock of a copy that was killed is known as such and taken over.
class QtInstance : public Instance {
public:
    QtInstance();
    explicit QtInstance(const QString& lockFile);
    bool AnotherCopyRuns() override;

private:
    QLockFile lock_;
};

/// The help viewer.
class QtHelp : public Help {
public:
    void Show(std::string_view path) override;
};

}  // namespace vatro
