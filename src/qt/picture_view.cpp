// SPDX-License-Identifier: MIT
#include "picture_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include "handbook.h"

namespace vatro {

namespace {

constexpr QSize kWithoutPicture(640, 480);
constexpr double kShareOfScreen = 0.9;

}  // namespace

void PictureView::SetPicture(const QString& file) {
    picture_ = QPixmap(HandbookFile(file));
    updateGeometry();
    update();
}

QPixmap PictureView::Dark(const QColor& ink) const {
    // Shades of the ink on black, whatever the colours of the picture, so that it does not light up the tent.
    QImage image = picture_.toImage().convertToFormat(QImage::Format_Grayscale8);
    image.invertPixels();
    QPixmap dark = QPixmap::fromImage(image.convertToFormat(QImage::Format_RGB32));
    QPainter painter(&dark);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(dark.rect(), ink);
    return dark;
}

QSize PictureView::sizeHint() const {
    if (picture_.isNull()) return kWithoutPicture;
    const QSize room = screen()->availableSize() * kShareOfScreen;
    return picture_.size().scaled(room.boundedTo(picture_.size()), Qt::KeepAspectRatio);
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    if (picture_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QColor ground = palette().color(QPalette::Window);
    if (ground == Qt::black) return painter.drawPixmap(rect(), Dark(palette().color(QPalette::WindowText)));
    painter.drawPixmap(rect(), picture_);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    // Accept the click, so that the window behind does not get it as well.
    event->setAccepted(event->button() == Qt::LeftButton);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Clicked();
}

}  // namespace vatro
