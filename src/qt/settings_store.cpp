// SPDX-License-Identifier: MIT
#include "qt/settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "qt/text.h"
#include "text/codepage.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vatro {

using namespace literals;

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

std::optional<MessageBox> QtSettings::Loss() const {
    if (store_.status() != QSettings::AccessError) return std::nullopt;
    MessageBox box;
    box.text = "Indstillingerne kunne ikke gemmes i\n\n";
    box.text += FromQt(QDir::toNativeSeparators(store_.fileName()));
    box.text += "\n\nNæste gang er de, som de var før. Loggene er gemt."_t;
    box.icon = Icon::Exclamation;
    return box;
}

}  // namespace vatro
