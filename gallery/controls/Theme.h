#pragma once

#include <GXUIPickers/UIColor.h>
#include <GXUIPickers/UIFont.h>
#include <GXUIPickers/UIView.h>

namespace gallery {

/// The looks of the gallery in one place: colours for light and dark at either contrast, fonts and
/// distances, all chosen by eye. Those of the pickers come from `gx::GXStyleSheet`.
class Theme {
public:
    Theme() = delete;

    // Colours

    static gx::UIColor background();
    static gx::UIColor sidebar();
    static gx::UIColor card();
    static gx::UIColor hairline();
    static gx::UIColor text();
    static gx::UIColor secondaryText();
    static gx::UIColor accent();
    /// Error messages.
    static gx::UIColor warning();
    /// Behind the chosen row of a list.
    static gx::UIColor accentFill();
    /// Behind a row of segments.
    static gx::UIColor track();
    /// The chosen segment.
    static gx::UIColor thumb();
    /// Laid over a control while a finger is down on it.
    static gx::UIColor pressed();

    // Fonts

    static const gx::Ref<gx::UIFont>& titleFont();
    static const gx::Ref<gx::UIFont>& headingFont();
    static const gx::Ref<gx::UIFont>& bodyFont();
    static const gx::Ref<gx::UIFont>& strongFont();
    static const gx::Ref<gx::UIFont>& captionFont();
    static const gx::Ref<gx::UIFont>& strongCaptionFont();

    // Distances, in points

    /// The least width with a sidebar beside the page.
    static constexpr gx::CGFloat sidebarBreakpoint = 720;
    static constexpr gx::CGFloat sidebarWidth = 232;
    /// The least width of a window that shows a picker beside what belongs to it.
    static constexpr gx::CGFloat sideBySideBreakpoint = 900;
    static constexpr gx::CGFloat barHeight = 56;
    /// What a finger needs to hit a control reliably.
    static constexpr gx::CGFloat controlHeight = 40;
    static constexpr gx::CGFloat cardRadius = 18;
    static constexpr gx::CGFloat cardPadding = 16;
    static constexpr gx::CGFloat gap = 16;
    /// From the edges of a page of this width to its cards.
    static constexpr gx::CGFloat marginForWidth(gx::CGFloat width) { return width < 480 ? 16 : 32; }

    /// Draws the outline of a rounded rectangle in the accent colour, inside the rectangle.
    static void drawOutline(gx::UIGraphicsContext& context, gx::CGRect rect, gx::CGFloat cornerRadius);
    /// A rounded surface for other views.
    static gx::Ref<gx::UIView> makeCard();
};

} // namespace gallery
