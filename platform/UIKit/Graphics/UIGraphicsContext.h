#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "CGGeometry.h"
#include "GXExport.h"
#include "UIColor.h"
#include "UIDrawingVersion.h"
#include "UIFont.h"
#include "UIImage.h"

namespace gx {

/// The canvas that a host gives to a window for one frame.
///
/// It starts with the origin at the window's top left, y growing downward, one unit a point. Views
/// draw with the public operations; a host implements the protected ones. Colours and images arrive
/// there resolved for the look and the contrast of the frame.
class GX_EXPORT UIGraphicsContext {
public:
    virtual ~UIGraphicsContext() = default;

    /// The look that colours and images are resolved for; the window sets it before it draws.
    UIUserInterfaceStyle userInterfaceStyle() const { return style_; }
    void setUserInterfaceStyle(UIUserInterfaceStyle style) { style_ = style; }
    /// The contrast that colours are resolved for; set likewise. Views may draw more edges at high
    /// contrast.
    UIAccessibilityContrast accessibilityContrast() const { return contrast_; }
    void setAccessibilityContrast(UIAccessibilityContrast contrast) { contrast_ = contrast; }

    /// Keep and restore transform, clip and alpha. Calls nest and come in pairs.
    virtual void saveState() = 0;
    /// Restores what the last open `saveState` kept.
    virtual void restoreState() = 0;
    /// Move and scale what follows, on top of the present transform.
    virtual void translate(CGFloat x, CGFloat y) = 0;
    /// Scales about the present origin.
    virtual void scale(CGFloat x, CGFloat y) = 0;
    /// Clips what follows to the rectangle, within the present clip.
    virtual void clipToRect(CGRect rect) = 0;
    /// Multiplies the alpha of what follows by a factor from 0 to 1.
    virtual void multiplyAlpha(double alpha) = 0;

    /// Called before a view draws itself and what is below it, at an origin and with an alpha that
    /// it sets afterwards. A hidden one draws nothing then.
    ///
    /// A canvas that has recorded the same version before may show that again and return true: the
    /// view then draws nothing. Here false, and every view draws.
    virtual bool beginView(const UIDrawingVersion& version, CGPoint origin, double alpha);
    /// Called after a view has drawn, unless `beginView` returned true. Both nest.
    virtual void endView();
    /// Called before a view draws its subviews in their order, so many of them.
    ///
    /// A canvas that has recorded the same number of them for the same `view`, in the state that is
    /// in force, may return the `tree` of that time. A subview whose own `tree` is not higher draws
    /// the same as then. Here 0, and every subview draws.
    virtual std::uint64_t beginSubviews(const UIDrawingVersion& version, std::size_t count);
    /// Shows so many of those subviews as they were recorded, in place of their `beginView`.
    virtual void repeatSubviews(std::size_t count);

    /// Fills a rectangle, its corners rounded by `cornerRadius` points.
    void fillRect(CGRect rect, const UIColor& color, CGFloat cornerRadius = 0);
    /// Draws one line of text with its line box at `origin` (top left).
    void drawText(std::string_view text, const UIFont& font, const UIColor& color, CGPoint origin);
    /// Draws the whole image into the rectangle.
    void drawImage(const UIImage& image, CGRect rect);

protected:
    /// What `fillRect` ends in. A radius of 0 means square corners.
    virtual void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) = 0;
    /// What `drawText` ends in: one line of UTF-8, its line box at `origin`.
    virtual void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) = 0;
    /// What `drawImage` ends in: an image of pixels or of the host, never a pair.
    virtual void drawImageInRect(const UIImage& image, CGRect rect) = 0;

private:
    UIUserInterfaceStyle style_ = UIUserInterfaceStyle::Light;
    UIAccessibilityContrast contrast_ = UIAccessibilityContrast::Normal;
};

} // namespace gx
