// SPDX-License-Identifier: MIT
//
// Shows that nobody is chosen as operator before Log refuses the contact for it: the operator field has a colour and says so.
#pragma once

#include <QObject>

class QComboBox;
class QLabel;
class QMainWindow;

namespace vatro {

class QtFront;

class OperatorMark : public QObject {
    Q_OBJECT

public:
    OperatorMark(QMainWindow& window, QComboBox& box);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    QComboBox& box_;
    QString toolTip_;
    /// In the field. A placeholder would not be seen, because a field without an operator can hold blanks.
    QLabel* word_;
    bool marked_ = false;
};

/// Marks the operator field of the main window, which must exist, from now on.
void MarkOperator(const QtFront& front);

}  // namespace vatro
