#pragma once

#include <GXUIPickers/UIColor.h>
#include <GXUIPickers/UIFont.h>
#include <GXUIPickers/UIView.h>

namespace gallery {

/// The looks of the gallery in one place: colours for light and dark at either contrast, fonts and distances. The pickers do not take part:
/// theirs come from `gx::GXStyleSheet`.
class GalleryTheme {
public:
    GalleryTheme() = delete;

    // Colours

    static gx::UIColor background();
    static gx::UIColor sidebar();
    static gx::UIColor card();
    static gx::UIColor hairline();
    static gx::UIColor text();
    static gx::UIColor secondaryText();
    static gx::UIColor accent();
    /// What went wrong.
    static gx::UIColor warning();
    /// Behind the chosen row of a list.
    static gx::UIColor accentFill();
    /// Behind a row of segments.
    static gx::UIColor track();
    /// The chosen segment.
    static gx::UIColor thumb();
    /// Laid over what a finger holds down.
    static gx::UIColor pressed();

    // Fonts

    static const gx::Ref<gx::UIFont>& titleFont();
    static const gx::Ref<gx::UIFont>& headingFont();
    static const gx::Ref<gx::UIFont>& bodyFont();
    static const gx::Ref<gx::UIFont>& strongFont();
    static const gx::Ref<gx::UIFont>& captionFont();
    static const gx::Ref<gx::UIFont>& strongCaptionFont();

    // Distances, in points

    /// From here on there is room for a sidebar beside the page.
    static constexpr gx::CGFloat sidebarBreakpoint = 720;
    static constexpr gx::CGFloat sidebarWidth = 232;
    static constexpr gx::CGFloat barHeight = 56;
    /// What a finger needs to hit a control.
    static constexpr gx::CGFloat controlHeight = 40;
    static constexpr gx::CGFloat cardRadius = 18;
    static constexpr gx::CGFloat cardPadding = 16;
    static constexpr gx::CGFloat gap = 16;
    /// From the edges of a page of this width to its cards.
    static constexpr gx::CGFloat marginForWidth(gx::CGFloat width) { return width < 480 ? 16 : 32; }

    /// The outline of a rounded rectangle in the accent colour, strong enough to be found at a glance. It lies within.
    static void drawOutline(gx::UIGraphicsContext& context, gx::CGRect rect, gx::CGFloat cornerRadius);
    /// A rounded surface to put things on.
    static gx::Ref<gx::UIView> makeCard();
};

} // namespace gallery
