// SPDX-License-Identifier: MIT
#include "handbook.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

// Must be outside of every namespace, because Qt's resource macro requires it.
static void UseHandbook() {
    Q_INIT_RESOURCE(handbook);
}

namespace vatro {

namespace {

const QString kContents = QStringLiteral("indhold.html");

/// The part of a contents line before the ":". The rest is too long for a narrow list.
QString ShortTitle(const QString& text) {
    return text.section(u':', 0, 0).trimmed();
}

QString LinkIn(const QTextBlock& block) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece)
        if (const QString link = piece.fragment().charFormat().anchorHref(); !link.isEmpty()) return link;
    return {};
}

}  // namespace

QString HandbookFile(const QString& name) {
    UseHandbook();
    return QStringLiteral(":/handbook/") + name;
}

QList<HandbookEntry> HandbookContents() {
    QFile file(HandbookFile(kContents));
    QTextDocument document;
    if (file.open(QIODevice::ReadOnly)) document.setHtml(QString::fromUtf8(file.readAll()));
    QList<HandbookEntry> entries;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString link = LinkIn(block);
        if (!link.isEmpty())
            entries.append({ShortTitle(block.text()), link});
        else if (block.blockFormat().headingLevel() == 2)
            entries.append({block.text(), {}});
    }
    return entries;
}

QStringList HandbookPages() {
    QStringList pages{kContents};
    for (const HandbookEntry& entry : HandbookContents()) {
        const QString page = entry.link.section(u'#', 0, 0);
        if (!page.isEmpty() && !pages.contains(page)) pages.append(page);
    }
    return pages;
}

}  // namespace vatro
