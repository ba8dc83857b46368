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

class OutcomeSign;
class QtFront;
class QtPrinter;

class PaperEnds : public QObject {
    Q_OBJECT

public:
    /// `watch` must be the files of the program. All arguments must outlive this object.
    PaperEnds(QtFront& front, PaperWatch& watch, QtPrinter& printer);
    ~PaperEnds() override;

    /// Opens a file or directory, and calls `failed` if nothing can, perhaps later. Replaceable.
    std::function<void(const QUrl& url, const std::function<void()>& failed)> open;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();
    void Show(const PaperEnd& end);
    /// Adds text and buttons to the progress window, unless it has them.
    bool Furnish();
    /// Moves the window up if it covers the entry fields, which the operator may need at once.
    void UncoverFields(QWidget& window) const;
    void Open(const QString& path);
    /// Tells that nothing opens this file or directory, as soon as no handler is running.
    void TellNotOpened(const QString& path);

    QtFront& front_;
    PaperWatch& watch_;
    QtPrinter& printer_;
    /// How many steps the progress window had when it was last looked at.
    int steps_ = 0;
    QStringList files_;
    // In the progress window, and deleted with it.
    QPointer<OutcomeSign> sign_;
    QPointer<QLabel> text_;
    QPointer<QPushButton> file_;
    QPointer<QPushButton> directory_;
    AfterHandlers afterHandlers_;
};

}  // namespace vatro
