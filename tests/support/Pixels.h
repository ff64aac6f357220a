#pragma once

#include <QImage>
#include <QRect>

/// The smallest rectangle of device pixels outside of which the image is clear.
inline QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0) ink = ink.united(QRect(x, y, 1, 1));
        }
    }
    return ink;
}

/// A clear image of so many points.
inline QImage clearImage(int width, int height, double scale) {
    QImage image(static_cast<int>(width * scale), static_cast<int>(height * scale), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}
