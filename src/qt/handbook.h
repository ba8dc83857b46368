// SPDX-License-Identifier: MIT
//
// The handbook, which is built into the program: its pages and pictures, and its table of contents.
#pragma once

#include <QList>
#include <QString>

namespace vatro {

/// The resource of a page or picture by the name of its file.
QString HandbookFile(const QString& name);

/// An entry of the table of contents: a heading, or a page below it.
struct HandbookEntry {
    QString title;
    /// As the page is linked to, "fdmanager.html#backup"; empty for a heading.
    QString link;
};
QList<HandbookEntry> HandbookContents();

/// All pages of the handbook by their files, each once, in the order of the table of contents, which comes first.
QStringList HandbookPages();

}  // namespace vatro
