#pragma once

#include <QtCore/qnamespace.h>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIColor.h>
#include <GXUIPickers/UIPointer.h>

class QPalette;

// What widgets and items of Qt Quick read from their surroundings in the same way.

namespace gx::qt {

/// Light or dark: a window darker than the middle needs bright text.
GX_EXPORT UIUserInterfaceStyle styleOfPalette(const QPalette& palette);
/// The cursor for a style that is not the default one.
GX_EXPORT Qt::CursorShape cursorOfStyle(UIPointerStyle style);

} // namespace gx::qt
