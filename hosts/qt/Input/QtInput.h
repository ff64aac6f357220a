#pragma once

#include <cstdint>
#include <vector>

#include <QPointF>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIWindowInput.h>

class QKeyEvent;
class QMouseEvent;
class QTouchEvent;
class QWheelEvent;

namespace gx::qt {

/// Converts Qt's input events to those of a window.
///
/// - Supports: any number of fingers; the mouse with its left button as one more; mouse wheels,
///   also in fractions of a notch and sideways; trackpads with strokes and glides; keys, also held
///   ones, and the text that they type.
/// - Supports the pointer of a mouse that hovers, and of a pen that Qt makes mouse events of.
/// - Does not support: pens as such, gestures, input methods that compose a text before it is
///   typed.
///
/// Times are in seconds on the clock of the window's ticks. Each operation returns whether the
/// event was handled; others are for the widgets around the view. Callbacks of views may drop
/// everything but this object, so the caller has to keep it alive.
class GX_EXPORT QtInput {
public:
    explicit QtInput(Ref<UIWindowInput> window) : window_(std::move(window)) {}
    void setWindow(Ref<UIWindowInput> window) { window_ = std::move(window); }

    bool touch(const QTouchEvent& event, NSTimeInterval time);
    bool mousePress(const QMouseEvent& event, NSTimeInterval time);
    bool mouseMove(const QMouseEvent& event, NSTimeInterval time);
    bool mouseRelease(const QMouseEvent& event, NSTimeInterval time);
    bool wheel(const QWheelEvent& event, NSTimeInterval time);
    /// The pointer comes into the widget, or leaves it.
    void pointerEntered(QPointF place) { window()->pointerMoved({place.x(), place.y()}); }
    void pointerLeft() { window()->pointerLeft(); }
    /// A key goes down or repeats. Tab is left to `moveFocus`.
    bool keyPress(const QKeyEvent& event, NSTimeInterval time);
    /// Tab, or Shift and Tab.
    bool moveFocus(bool isForward, NSTimeInterval time);
    /// Takes away all fingers, and the mouse.
    void cancelAll(NSTimeInterval time);

    /// How many keys went down, and fingers came down or went, so far. Movements are not counted.
    std::uint64_t stepCount() const { return stepCount_; }

private:
    static constexpr std::int64_t mouseFinger = UITouch::pointerIdentifier;

    /// By value: a call may set another one.
    Ref<UIWindowInput> window() const { return window_; }
    bool isDown(std::int64_t finger) const;
    bool begin(std::int64_t finger, QPointF place, NSTimeInterval time);
    bool move(std::int64_t finger, QPointF place, NSTimeInterval time);
    bool end(std::int64_t finger, QPointF place, NSTimeInterval time);

    Ref<UIWindowInput> window_;
    std::vector<std::int64_t> down_;
    std::uint64_t stepCount_ = 0;
};

} // namespace gx::qt
