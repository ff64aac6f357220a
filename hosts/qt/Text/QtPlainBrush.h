#pragma once

#include <QBrush>
#include <QColor>

#include <GXUIPickers/GXExport.h>

namespace gx::qt {

/// A brush of one colour that fills images, pixel for pixel, as the colour itself does.
///
/// It costs less the first time: for a colour, Qt starts threads to fill shapes, and computes
/// tables to blend text on opaque pixels. Both took more than half of an application's first frame.
/// Qt does neither for a gradient from top to bottom, as this brush is.
///
/// Use it for images that are kept. What is painted in each frame is faster with the colour.
GX_EXPORT QBrush plainBrush(const QColor& color);

} // namespace gx::qt
