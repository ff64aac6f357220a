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
    /// The same below the pointer, fainter.
    static gx::UIColor hovered();

    // Texts, which follow the text scale of the style sheet

    enum class TextStyle { Title, Heading, Body, Strong, Caption, StrongCaption, Section };
    /// The same object until the text scale changes. Larger styles grow by fewer per cent, so that
    /// their words have room on a phone: titles stay as much larger than the body as at scale 1.
    static gx::Ref<gx::UIFont> font(TextStyle style);
    static double textScale();

    // Heights and widths in points that grow with the text

    /// Of a control with one line; at least what a finger needs to hit it reliably.
    static gx::CGFloat controlHeight();
    /// Of a bar with one line.
    static gx::CGFloat barHeight();
    static gx::CGFloat sidebarWidth();
    /// The least width with a sidebar beside the page. A window with large text has room for less.
    static gx::CGFloat sidebarBreakpoint();
    /// A length that is chosen for scale 1.
    static gx::CGFloat scaled(gx::CGFloat length);
    /// The same, but no less than chosen: smaller texts do not need a narrower page.
    static gx::CGFloat grown(gx::CGFloat length);

    // The rows of a wheel that is as high as its place allows

    /// With fewer a wheel does not look like one.
    static constexpr double fewestRowsOfWheel = 3;
    /// More look like a list.
    static constexpr double mostRowsOfWheel = 9;

    // Distances in points, the same at each scale, since width is what large texts lack

    /// The least width of a window that shows a picker beside what belongs to it.
    static constexpr gx::CGFloat sideBySideBreakpoint = 900;
    static constexpr gx::CGFloat cardRadius = 18;
    static constexpr gx::CGFloat cardPadding = 16;
    static constexpr gx::CGFloat gap = 16;
    /// From the bar to a page whose title the bar has.
    static constexpr gx::CGFloat gapBelowBar = 12;
    /// From the edges of a page of this width to its cards.
    static constexpr gx::CGFloat marginForWidth(gx::CGFloat width) { return width < 480 ? 16 : 32; }

    /// Draws the outline of a rounded rectangle in the accent colour, inside the rectangle.
    static void drawOutline(gx::UIGraphicsContext& context, gx::CGRect rect, gx::CGFloat cornerRadius);
    /// Lays out a view and all below it again, after a change of the text scale or the locale.
    static void layOutAgain(const gx::Ref<gx::UIView>& view);
    /// A rounded surface for other views.
    static gx::Ref<gx::UIView> makeCard();
};

} // namespace gallery
