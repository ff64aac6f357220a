#pragma once

#include <cstdint>

#include "GXExport.h"

namespace gx {

/// Stands for what a view draws: as long as it is the same, so are the view's drawing calls.
///
/// That holds within one locale, one state of the text measures (`UITextEngine::generation`), one
/// look and one contrast of the canvas, and at one place.
///
/// Its numbers are given once and in order, so no other view and no later state of the view has
/// them.
struct UIDrawingVersion {
    std::uint64_t view = next(); ///< another when the view and all below it may look different
    std::uint64_t tree = view;   ///< a higher one also when only a view below it may look different
    /// A number above all those given before; never 0.
    GX_EXPORT static std::uint64_t next();
};

} // namespace gx
