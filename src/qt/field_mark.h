// SPDX-License-Identifier: MIT
//
// Shows where the keys go while another window is in front: Qt draws no caret in a window that is not active.
#pragma once

#include <QWidget>

namespace vatro {

/// A frame in the colour of the text round one widget.
class FieldMark : public QWidget {
    Q_OBJECT

public:
    /// Shown round this widget from now on, until it is hidden. Belongs to the widget's window.
    void Surround(QWidget& widget);

    FieldMark();

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vatro
