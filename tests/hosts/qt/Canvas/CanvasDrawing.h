#pragma once

#include <QPainter>

#include "Pixels.h"
#include "QtCanvas.h"

/// Runs `act` with a canvas on the image, as within a frame.
template <class Act>
void drawOn(QImage& image, gx::qt::QtCanvas& canvas, Act act) {
    QPainter painter(&image);
    canvas.begin(painter);
    act(canvas);
    canvas.end();
}
template <class Act>
QImage drawn(int width, int height, double scale, Act act) {
    QImage image = clearImage(width, height, scale);
    gx::qt::QtCanvas canvas;
    drawOn(image, canvas, act);
    return image;
}
