// SPDX-License-Identifier: MIT
//
// Shows the value of a scroll bar that stands in a form, such as the volume of the Morse: while it is moved and in its tooltip.
#pragma once

#include <QObject>

class QScrollBar;

namespace vatro {

class ScrollTips : public QObject {
    Q_OBJECT

public:
    ScrollTips();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Watch(QScrollBar& bar);
};

}  // namespace vatro
