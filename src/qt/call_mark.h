// SPDX-License-Identifier: MIT
//
// Shows in the entry form's call field, where the operator looks, what the status bar says about the call: a duplicate colours the field
// until the call is changed. When the field becomes empty, the text about the contact before stays in the status bar, but faded.
#pragma once

#include <QObject>

class QLineEdit;

namespace vatro {

class QtFront;
class StatusPanel;

class CallMark : public QObject {
    Q_OBJECT

public:
    /// Both must be in the same window.
    CallMark(QLineEdit& call, StatusPanel& panel);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    QLineEdit& call_;
    StatusPanel& panel_;
    bool marked_ = false;
};

/// Marks the call field of the entry form from now on. Call when the entry form has its window.
void MarkCall(const QtFront& front);

}  // namespace vatro
