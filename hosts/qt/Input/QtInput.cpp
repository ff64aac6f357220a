#include "QtInput.h"

#include <algorithm>

#include <QEventPoint>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTouchEvent>
#include <QWheelEvent>

#include <GXUIPickers/UIKey.h>

namespace gx::qt {

namespace {

// Qt counts a wheel in eighths of a degree; a notch is 15 degrees.
constexpr double unitsOfNotch = 120;

CGPoint pointOf(QPointF place) { return {place.x(), place.y()}; }

QInputDevice::DeviceType typeOf(const QPointerEvent& event) {
    return event.pointingDevice() ? event.pointingDevice()->type() : QInputDevice::DeviceType::Unknown;
}

/// False for the mouse events that a system, or Qt, makes of touches: the touches come as
/// themselves. Those that Qt makes of a pen come instead of it.
bool isOfMouse(const QMouseEvent& event) {
    if (event.source() == Qt::MouseEventSynthesizedBySystem) return false;
    const QInputDevice::DeviceType type = typeOf(event);
    const bool isOfTrackpadTouch = type == QInputDevice::DeviceType::TouchPad && event.source() == Qt::MouseEventSynthesizedByQt;
    return type != QInputDevice::DeviceType::TouchScreen && !isOfTrackpadTouch;
}

UIKey::Code codeOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return UIKey::Code::Left;
    case Qt::Key_Right:
        return UIKey::Code::Right;
    case Qt::Key_Up:
        return UIKey::Code::Up;
    case Qt::Key_Down:
        return UIKey::Code::Down;
    case Qt::Key_PageUp:
        return UIKey::Code::PageUp;
    case Qt::Key_PageDown:
        return UIKey::Code::PageDown;
    case Qt::Key_Home:
        return UIKey::Code::Home;
    case Qt::Key_End:
        return UIKey::Code::End;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return UIKey::Code::Return;
    case Qt::Key_Escape:
        return UIKey::Code::Escape;
    case Qt::Key_Space:
        return UIKey::Code::Space;
    default:
        return UIKey::Code::None;
    }
}

/// Whether a text begins with what a reader sees; beyond U+FFFF it takes two places.
bool isPrintable(const QString& text) {
    if (text.isEmpty()) return false;
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return QChar::isPrint(isPair ? QChar::surrogateToUcs4(text[0], text[1]) : char32_t{text[0].unicode()});
}

UIKey keyOf(const QKeyEvent& event, NSTimeInterval time) {
    UIKey key;
    key.code = codeOf(event.key());
    key.isRepeat = event.isAutoRepeat();
    key.timestamp = time;
    const QString text = event.text();
    const bool isTyped = key.code == UIKey::Code::None && isPrintable(text);
    if (isTyped) {
        key.code = UIKey::Code::Character;
        key.characters = text.toStdString();
    }
    const Qt::KeyboardModifiers held = event.modifiers();
    if (held.testFlag(Qt::ShiftModifier)) key.modifiers |= UIKey::Shift;
    // AltGr, where the system has it as both keys at once, types.
    if (isTyped && held.testFlag(Qt::ControlModifier) && held.testFlag(Qt::AltModifier)) return key;
    if (held.testFlag(Qt::ControlModifier)) key.modifiers |= UIKey::Control;
    if (held.testFlag(Qt::AltModifier)) key.modifiers |= UIKey::Alternate;
    if (held.testFlag(Qt::MetaModifier)) key.modifiers |= UIKey::Command;
    return key;
}

} // namespace

bool QtInput::isDown(std::int64_t finger) const { return std::find(down_.begin(), down_.end(), finger) != down_.end(); }

bool QtInput::begin(std::int64_t finger, QPointF place, NSTimeInterval time) {
    ++stepCount_;
    // Noted before the call, in which views may hide the widget, which cancels what is down.
    if (!isDown(finger)) down_.push_back(finger);
    if (window()->touchBegan_at_time(finger, pointOf(place), time)) return true;
    std::erase(down_, finger);
    // Qt sends the rest of the touch to the widgets around.
    window()->touchCancelled_at_time(finger, time);
    return false;
}

bool QtInput::move(std::int64_t finger, QPointF place, NSTimeInterval time) {
    if (!isDown(finger)) return false;
    window()->touchMoved_at_time(finger, pointOf(place), time);
    return true;
}

bool QtInput::end(std::int64_t finger, QPointF place, NSTimeInterval time) {
    if (!isDown(finger)) return false;
    ++stepCount_;
    std::erase(down_, finger);
    window()->touchEnded_at_time(finger, pointOf(place), time);
    return true;
}

bool QtInput::touch(const QTouchEvent& event, NSTimeInterval time) {
    if (event.type() == QEvent::TouchCancel) {
        cancelAll(time);
        return true;
    }
    // Fingers on a trackpad move the pointer and scroll; their places are not places on the screen.
    if (typeOf(event) == QInputDevice::DeviceType::TouchPad) return false;
    bool isUsed = false;
    for (const QEventPoint& point : event.points()) {
        switch (point.state()) {
        case QEventPoint::State::Pressed:
            isUsed |= begin(point.id(), point.position(), time);
            break;
        case QEventPoint::State::Updated:
            isUsed |= move(point.id(), point.position(), time);
            break;
        case QEventPoint::State::Released:
            isUsed |= end(point.id(), point.position(), time);
            break;
        default:
            isUsed |= isDown(point.id());
            break;
        }
    }
    return isUsed;
}

bool QtInput::mousePress(const QMouseEvent& event, NSTimeInterval time) {
    return isOfMouse(event) && event.button() == Qt::LeftButton && begin(mouseFinger, event.position(), time);
}

bool QtInput::mouseMove(const QMouseEvent& event, NSTimeInterval time) {
    if (!isOfMouse(event)) return false;
    window()->pointerMoved(pointOf(event.position()));
    if (!isDown(mouseFinger)) return false;
    if (event.buttons().testFlag(Qt::LeftButton)) return move(mouseFinger, event.position(), time);
    // The release went elsewhere, say to a menu.
    std::erase(down_, mouseFinger);
    window()->touchCancelled_at_time(mouseFinger, time);
    return true;
}

bool QtInput::mouseRelease(const QMouseEvent& event, NSTimeInterval time) {
    return isOfMouse(event) && event.button() == Qt::LeftButton && end(mouseFinger, event.position(), time);
}

bool QtInput::wheel(const QWheelEvent& event, NSTimeInterval time) {
    UIScroll scroll;
    scroll.timestamp = time;
    scroll.locationInWindow = pointOf(event.position());
    // Where a system reports no phases, Qt calls its pixels unreliable; there the notches are
    // better. The beginning and the end of a stroke may come without any distance.
    const bool hasNotches = !event.angleDelta().isNull();
    const bool hasPhase = event.phase() != Qt::NoScrollPhase;
    if (hasPhase && (!event.pixelDelta().isNull() || !hasNotches)) {
        scroll.unit = UIScroll::Unit::Points;
        scroll.deltaX = -event.pixelDelta().x();
        scroll.deltaY = -event.pixelDelta().y();
        // Qt ends a stroke when its glide has ended too.
        scroll.isFinished = event.phase() == Qt::ScrollEnd;
    } else if (hasNotches) {
        scroll.deltaX = -event.angleDelta().x() / unitsOfNotch;
        scroll.deltaY = -event.angleDelta().y() / unitsOfNotch;
    } else {
        return false;
    }
    return window()->scroll(scroll);
}

bool QtInput::keyPress(const QKeyEvent& event, NSTimeInterval time) {
    // Qt calls `focusNextPrevChild` for Tab before it sends the key, and sends it if that returns
    // false.
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) return false;
    ++stepCount_;
    return window()->keyDown(keyOf(event, time));
}

bool QtInput::moveFocus(bool isForward, NSTimeInterval time) {
    ++stepCount_;
    UIKey key;
    key.code = isForward ? UIKey::Code::Tab : UIKey::Code::BackTab;
    key.timestamp = time;
    return window()->keyDown(key);
}

void QtInput::cancelAll(NSTimeInterval time) {
    while (!down_.empty()) {
        const std::int64_t finger = down_.back();
        down_.pop_back();
        window()->touchCancelled_at_time(finger, time);
    }
}

} // namespace gx::qt
