// SPDX-License-Identifier: MIT
//
// A picture of the handbook, stretched to the size of the widget.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace vatro {

class PictureView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    /// The file's name without its directory. One that is not there leaves the widget empty.
    void SetPicture(const QString& file);
    const QPixmap& Picture() const { return picture_; }
    /// Its own size, or as much of it as the screen has room for.
    QSize sizeHint() const override;
    /// A window is not made so small around it that nothing can be read.
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Pressed and let go on the picture.
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPixmap picture_;
};

}  // namespace vatro
