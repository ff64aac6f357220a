#pragma once

#include <GXUIPickers/CGGeometry.h>
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// Where lines begin: at the left, or at the right for a locale that is read from there.
///
/// Layouts are written from the leading edge, as for a language that is read from the left, and
/// mirrored here. A text that begins there has the alignment `NSTextAlignmentNatural`.
///
///     const CGFloat width = bounds().size.width;
///     menuButton->setFrame(ReadingDirection::frame(CGRectMake(8, 0, 40, 40), width));
///
/// The direction is that of the current locale at the time of the layout.
class ReadingDirection {
public:
    ReadingDirection() = delete;

    static bool isRightToLeft();
    /// The frame in a superview of this width, of which `fromLeading` has its x counted from the
    /// leading edge.
    static gx::CGRect frame(gx::CGRect fromLeading, gx::CGFloat superviewWidth);
    /// For a text that ends at the trailing edge.
    static gx::NSTextAlignment trailingAlignment();
};

} // namespace gallery
