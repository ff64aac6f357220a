#pragma once

#include <QImage>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIView.h>

namespace gx::qt {

/// Draws a view, laid out in a window of this size, to an image without a widget: for pictures of screens and for tests.
///
/// Supports: any view, at any number of pixels for a point, in either look. Where the view draws nothing the image is clear. Does not
/// support: a view that stays where it was. It is taken out of its superview and ends without one. Nothing for an absent
/// view and for a size without pixels.
GX_EXPORT QImage imageOfView(const Ref<UIView>& view, CGSize size, double scale, UIUserInterfaceStyle style);

} // namespace gx::qt
