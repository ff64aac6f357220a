#include "QtRepaint.h"

#include <utility>

#include <QBackingStore>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace gx::qt {

void QtRepaint::frameDidChange(QWidget& widget, UIWindowInput& window) {
    const bool wasComparable = std::exchange(isComparable_, false);
    isPresent_ = false;
    if (!widget.isVisible() || !device_ || isRecording_) return widget.update();
    const bool isSameDevice = *device_ == shown_.transform();
    isPresent_ = true; // Unless the views change something while they draw.
    isRecording_ = true;
    canvas_.begin(shown_, *device_);
    window.draw(canvas_);
    canvas_.end();
    isRecording_ = false;
    isPresent_ = isPresent_ && shown_.isComplete();
    isComparable_ = isPresent_;
    if (!wasComparable || !isPresent_ || !isSameDevice) return widget.update();
    const QRect changed = shown_.changedArea();
    if (!changed.isEmpty()) widget.update(pointsOf(changed));
}

void QtRepaint::paint(QWidget& widget, QPainter& painter, const QRect& area, UIWindowInput& window) {
    const QTransform device = painter.deviceTransform();
    if (isRecording_) { // A view that draws has the widget painted. Neither frame is whole now.
        isPresent_ = false;
        QtCanvas canvas;
        canvas.begin(painter);
        window.draw(canvas);
        canvas.end();
        return;
    }
    const bool isOnScreen =
        widget.backingStore() != nullptr && painter.paintEngine()->paintDevice() == widget.backingStore()->paintDevice();
    if (isOnScreen && isPresent_ && device == shown_.transform()) {
        canvas_.paintFrame(painter, shown_, device.mapRect(QRectF(area)).toAlignedRect());
        return;
    }
    if (isOnScreen) {
        isComparable_ = false;
        device_ = device;
    }
    canvas_.begin(painter);
    window.draw(canvas_);
    canvas_.end();
}

QRect QtRepaint::pointsOf(const QRect& pixels) const {
    // Points may begin within pixels.
    return shown_.transform().inverted().mapRect(QRectF(pixels)).toAlignedRect().adjusted(-1, -1, 1, 1);
}

} // namespace gx::qt
