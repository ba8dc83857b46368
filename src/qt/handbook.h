// SPDX-License-Identifier: MIT
//
// The handbook that is built into the program: its pages, pictures and table of contents.
#pragma once

#include <QList>
#include <QString>

namespace vatro {

/// The resource of a page or picture, given its file name.
QString HandbookFile(const QString& name);

/// An entry of the table of contents: a heading, or a page below a heading.
struct HandbookEntry {
    QString title;
    /// The link to the page, such as "fdmanager.html#backup"; empty for a heading.
    QString link;
};
/// The table of contents, in order.
QList<HandbookEntry> HandbookContents();

/// The files of all pages, each once, in the order of the table of contents. The table of contents itself comes first.
QStringList HandbookPages();

}  // namespace vatro
