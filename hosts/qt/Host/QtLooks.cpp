#include "QtLooks.h"

#include <QPalette>

namespace gx::qt {

UIUserInterfaceStyle styleOfPalette(const QPalette& palette) {
    constexpr int middle = 128;
    return palette.color(QPalette::Window).lightness() < middle ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light;
}

Qt::CursorShape cursorOfStyle(UIPointerStyle style) {
    switch (style) {
    case UIPointerStyle::Press:
        return Qt::PointingHandCursor;
    case UIPointerStyle::Turn:
        return Qt::OpenHandCursor;
    case UIPointerStyle::Turning:
        return Qt::ClosedHandCursor;
    case UIPointerStyle::Disabled:
        return Qt::ForbiddenCursor;
    default:
        return Qt::ArrowCursor;
    }
}

} // namespace gx::qt
