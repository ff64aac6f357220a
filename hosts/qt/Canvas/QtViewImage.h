#pragma once

#include <QImage>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

/// Draws a view, laid out in a window of this size, to an image without a widget: for pictures of
/// screens and for tests.
///
/// - Supports: any view, at any number of pixels for a point, in either look. Where the view draws
///   nothing the image is clear.
/// - The view is taken out of its superview and ends without one.
/// - An absent view and a size without pixels give an empty image.
GX_EXPORT QImage imageOfView(const Ref<UIView>& view, CGSize size, double scale, UIUserInterfaceStyle style);

/// Draws a window as it is, in its size and look. Nothing in it changes but its layout.
GX_EXPORT QImage imageOfWindow(const Ref<UIWindow>& window, double scale);

} // namespace gx::qt
