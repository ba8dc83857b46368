// SPDX-License-Identifier: MIT
//
// When a command has made papers, the progress window shows what has become of them, with buttons that open the file and its directory.
// Switched on by the desktop program.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <functional>

#include "deliver.h"
#include "paper_watch.h"

class QLabel;
class QPushButton;

namespace vatro {

class QtFront;
class QtPrinter;

class PaperEnds : public QObject {
    Q_OBJECT

public:
    /// `watch` must be the files of the program. All arguments must outlive this object.
    PaperEnds(QtFront& front, PaperWatch& watch, QtPrinter& printer);
    ~PaperEnds() override;

    /// Opens a file or directory with the program that the desktop has for it. Returns false if there is none. Replaceable.
    std::function<bool(const QUrl&)> open;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();
    void Show(const PaperEnd& end);
    /// Adds text and buttons to the progress window, unless it has them.
    bool Furnish();
    /// Moves the window up if it covers the entry fields, which the operator may need at once.
    void UncoverFields(QWidget& window) const;
    void Open(const QString& path) const;

    QtFront& front_;
    PaperWatch& watch_;
    QtPrinter& printer_;
    /// How many steps the progress window had when it was last looked at.
    int steps_ = 0;
    QStringList files_;
    // In the progress window, and deleted with it.
    QPointer<QLabel> text_;
    QPointer<QPushButton> file_;
    QPointer<QPushButton> directory_;
    AfterHandlers afterHandlers_;
};

}  // namespace vatro
