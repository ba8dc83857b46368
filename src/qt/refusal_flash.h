// SPDX-License-Identifier: MIT
//
// Shows that a field has not taken the character that was typed or pasted.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace vatro {

/// A broad frame around a field, and a tint over it, for a moment, in the colour of what is wrong. Both can be seen at night too, where
/// that colour is the colour of the text. Further refusals extend it, so that it does not flicker.
class RefusalFlash : public QWidget {
    Q_OBJECT

public:
    /// Shows the frame around this widget, or extends it.
    static void Flash(QWidget& field);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit RefusalFlash(QWidget& field);
    void Begin();

    QPointer<QWidget> field_;
    QTimer timer_;
};

}  // namespace vatro
