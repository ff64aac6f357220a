#pragma once

#include <optional>

#include <QTransform>

#include "QtCanvas.h"
#include "QtFrame.h"
#include <GXUIPickers/UIWindowInput.h>

class QPainter;
class QWidget;

namespace gx::qt {

/// Has a widget painted where its views look different, and nowhere else.
///
/// After each tick the views draw over the recorded frame; the widget's next paint event paints
/// what looks different in it.
///
/// - A view draws once a frame, whatever is painted, and only if it, one below it or one around it
///   was invalidated; the others stay as they were recorded.
/// - No view has to say which part of it has changed.
///
/// Invariant: while frames are comparable, the screen shows the present one, but for what is still
/// to be painted. Where that is not known, everything is painted.
class QtRepaint {
public:
    /// After a tick that asks for drawing. Views may do anything but drop the widget.
    void frameDidChange(QWidget& widget, UIWindowInput& window);
    /// Something has changed since the tick, which the present frame does not show.
    void viewsDidChange() { isPresent_ = false; }
    /// Within a paint event, for an area in points. A picture of the widget (`QWidget::grab`) shows
    /// the views as they are.
    void paint(QWidget& widget, QPainter& painter, const QRect& area, UIWindowInput& window);

private:
    QRect pointsOf(const QRect& pixels) const;

    QtCanvas canvas_;
    QtFrame shown_;
    std::optional<QTransform> device_; // Of the last paint event.
    bool isRecording_ = false;
    bool isComparable_ = false;
    bool isPresent_ = false; // Whether the views look as `shown_` has recorded them.
};

} // namespace gx::qt
