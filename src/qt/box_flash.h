// SPDX-License-Identifier: MIT
//
// Shows that a box is waiting for an answer and has ignored the key that was pressed.
#pragma once

#include <QTimer>
#include <QWidget>

namespace vatro {

/// A wide frame in the text colour that appears, disappears and appears again; the first time, a translucent layer covers the whole box
/// as well. It can be seen at arm's length, in sunlight, and without telling colours apart. Further keys extend the flash instead of
/// restarting it, so that it never flashes more than three times a second.
class BoxFlash : public QWidget {
    Q_OBJECT

public:
    /// Flashes the box, or extends a running flash. Also makes a screen reader announce the focused control again. Makes no sound.
    static void Flash(QWidget& box);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit BoxFlash(QWidget& box);
    void Begin();
    void Step();

    QTimer timer_;
    int step_ = 0;
};

}  // namespace vatro
