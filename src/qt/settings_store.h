// SPDX-License-Identifier: MIT
//
// The settings in a file of the user's own, in the place that the desktop has for such files.
#pragma once

#include <QSettings>

#include "platform/platform.h"

namespace vatro {

class QtSettings : public Settings {
public:
    QtSettings();
    /// In a file of this name.
    explicit QtSettings(const QString& file);
    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    /// What the user is to be told of settings that the disk has not taken; nothing if it has them all.
    std::optional<MessageBox> Loss() const;

private:
    /// The key as it is stored, whatever its case; as told if there is none.
    QString Stored(std::string_view section, std::string_view key);

    QSettings store_;
};

}  // namespace vatro
