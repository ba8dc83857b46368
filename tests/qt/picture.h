// SPDX-License-Identifier: MIT
//
// What can be seen in a picture of a widget.
#pragma once

#include <QImage>
#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <map>

#include "qt/contrast.h"

namespace vatro {

/// The widget in its own pixels, whatever the scale of the screen.
inline QImage PictureOf(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image);
    return image;
}

/// The commonest colour of a part of a picture.
inline QRgb Ground(const QImage& image, const QRect& part) {
    std::map<QRgb, int> counts;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right() && x < image.width(); ++x) ++counts[image.pixel(x, y)];
    return std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) { return a.second < b.second; })->first;
}

/// The greatest contrast of any pixel of this part to a colour.
inline double Contrast(const QImage& image, const QRect& part, QRgb ground) {
    double best = 1;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right() && x < image.width(); ++x) best = std::max(best, ContrastOf(image.pixel(x, y), ground));
    return best;
}

/// How many pixels have more of red, green or blue than this colour.
inline int Brighter(const QImage& image, QRgb colour) {
    int brighter = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qRed(pixel) > qRed(colour) || qGreen(pixel) > qGreen(colour) || qBlue(pixel) > qBlue(colour)) ++brighter;
        }
    return brighter;
}

}  // namespace vatro
