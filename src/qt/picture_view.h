// SPDX-License-Identifier: MIT
//
// A picture of the handbook, scaled to the size of the widget.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace vatro {

class PictureView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    /// `file` is the file name without a directory. If there is no such picture, the widget stays empty.
    void SetPicture(const QString& file);
    const QPixmap& Picture() const { return picture_; }
    /// The size of the picture, reduced if the screen is too small for it.
    QSize sizeHint() const override;
    /// Keeps windows from becoming so small that the picture is unreadable.
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Emitted when the mouse is pressed and released on the picture.
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// The picture as shown at night.
    QPixmap Dark(const QColor& ink) const;

    QPixmap picture_;
};

}  // namespace vatro
