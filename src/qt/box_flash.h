// SPDX-License-Identifier: MIT
//
// Shows that a box waits for an answer and has not taken the key that was pressed.
#pragma once

#include <QTimer>
#include <QWidget>

namespace vatro {

/// A broad frame in the colour of the text that comes, goes and comes once more, the first time with a veil over all of the box: it
/// is seen at arm's length, in sunshine and without telling colours apart. Keys that follow each other keep it lit rather than make it
/// flicker, so that it never flashes more than three times a second.
class BoxFlash : public QWidget {
    Q_OBJECT

public:
    /// Flashes the box, or goes on flashing it. A screen reader says once more where the focus is. Makes no sound.
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
