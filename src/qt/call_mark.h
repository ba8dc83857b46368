// SPDX-License-Identifier: MIT
//
// Shows in the entry form's call field, where the operator looks, what the status bar says about the call: a duplicate colours the field
// until the call is changed. When the field becomes empty, the text about the contact before stays in the status bar, but faded.
#pragma once

#include <QObject>

class QLineEdit;
class QMainWindow;

namespace vatro {

class QtFront;
class StatusPanel;

class CallMark : public QObject {
    Q_OBJECT

public:
    /// The window must already contain all its widgets.
    CallMark(QMainWindow& window, QLineEdit& call, StatusPanel& panel);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    QLineEdit& call_;
    StatusPanel& panel_;
    bool marked_ = false;
};

/// Marks the call field of every main window that the front makes from now on.
void MarkCalls(QtFront& front);

}  // namespace vatro
