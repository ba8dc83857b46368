// SPDX-License-Identifier: MIT
#include "qt/settings_store.h"

#include <QFile>
#include <QFileInfo>

#include "qt/text.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vatro {

namespace {

/// A file put in the place of another is on the disk when its directory is.
void SyncPath(const QString& path) {
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    static_cast<void>(path);
#endif
}

}  // namespace

QtSettings::QtSettings() : store_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vatro"), QStringLiteral("vatro")) {
    store_.setFallbacksEnabled(false);
}

QtSettings::QtSettings(const QString& file) : store_(file, QSettings::IniFormat) {}

QString QtSettings::Stored(std::string_view section, std::string_view key) {
    const QString told = ToQt(section) + u'/' + ToQt(key);
    if (store_.contains(told)) return told;
    for (const QString& stored : store_.allKeys())
        if (stored.compare(told, Qt::CaseInsensitive) == 0) return stored;
    return told;
}

std::optional<std::string> QtSettings::Read(std::string_view section, std::string_view key) {
    const QVariant value = store_.value(Stored(section, key));
    if (!value.isValid()) return std::nullopt;
    // A hand-written line with commas in it reads as a list.
    if (value.typeId() == QMetaType::QStringList) return FromQt(value.toStringList().join(QStringLiteral(", ")));
    return FromQt(value.toString());
}

void QtSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    store_.setValue(Stored(section, key), ToQt(text));
    store_.sync();
    SyncPath(store_.fileName());
    SyncPath(QFileInfo(store_.fileName()).absolutePath());
}

}  // namespace vatro
