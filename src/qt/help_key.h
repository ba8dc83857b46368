// SPDX-License-Identifier: MIT
//
// F1 opens the handbook at the page of the window in front. Switched on by the desktop program.
#pragma once

#include <QObject>

class QWindow;

namespace vatro {

class QtFront;
class QtHelp;

class HelpKey : public QObject {
    Q_OBJECT

public:
    /// Both arguments must outlive this object.
    HelpKey(QtFront& front, QtHelp& help);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Open(const QWindow& window);

    QtFront& front_;
    QtHelp& help_;
};

}  // namespace vatro
