// SPDX-License-Identifier: MIT
//
// A frame that marks the field that receives the keys. Qt draws no caret in an inactive window, and many styles hardly show the focus.
#pragma once

#include <QPointer>
#include <QWidget>

namespace vatro {

/// A frame in the text colour around one widget.
class FieldMark : public QWidget {
    Q_OBJECT

public:
    /// Shows the frame around this widget until it is hidden, and follows it. It becomes a child of the widget's window.
    void Surround(QWidget& widget);

    FieldMark();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QWidget> widget_;
};

}  // namespace vatro
