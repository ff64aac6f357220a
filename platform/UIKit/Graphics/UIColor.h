#pragma once

#include "GXExport.h"

namespace gx {

/// The look that colours are shown in; a property of the window.
enum class UIUserInterfaceStyle { Light, Dark };

/// How far colours keep apart from each other; a property of the window. High is for users who see
/// faint differences badly.
enum class UIAccessibilityContrast { Normal, High };

/// A colour as it is drawn: red, green, blue and alpha from 0 to 1, sRGB, not premultiplied.
struct UIColorComponents {
    double red = 0;   ///< 0 to 1
    double green = 0; ///< 0 to 1
    double blue = 0;  ///< 0 to 1
    double alpha = 0; ///< 0 (clear) to 1 (opaque)
    friend bool operator==(const UIColorComponents&, const UIColorComponents&) = default;
};

/// A colour with a value for each look, at either contrast.
///
/// It is resolved when it is drawn, so a window that changes its look or its contrast only has to
/// draw again.
///
/// Invariant: all components are from 0 to 1.
class GX_EXPORT UIColor {
public:
    /// The clear colour.
    UIColor() = default;

    /// Components from 0 to 1; others are clamped, and NaN becomes 0.
    static UIColor colorWithRed_green_blue_alpha(double red, double green, double blue, double alpha);
    /// A grey from 0 (black) to 1 (white); clamped likewise.
    static UIColor colorWithWhite_alpha(double white, double alpha);
    /// `rgb` as 0xRRGGBB.
    static UIColor colorWithHex(unsigned rgb, double alpha = 1);
    /// The light value of `light` in the light look, the dark value of `dark` in the dark one.
    static UIColor colorWithLight_dark(const UIColor& light, const UIColor& dark);
    /// The values of `normal` at normal contrast, those of `high` at high contrast, each in both
    /// looks.
    static UIColor colorWithNormal_highContrast(const UIColor& normal, const UIColor& high);

    /// Draws nothing.
    static UIColor clearColor();
    /// Black in both looks.
    static UIColor blackColor();
    /// White in both looks.
    static UIColor whiteColor();

    // At high contrast the texts and the tint have a contrast of 7 to 1 and more to what lies
    // behind them, also on the fill below: to white in the light look, to the style sheet's
    // background in the dark one.

    /// Text: near black in the light look, near white in the dark one; black and white at high
    /// contrast.
    static UIColor labelColor();
    /// Quieter text, such as units: a grey in either look.
    static UIColor secondaryLabelColor();
    /// The tint of a view where no view above it sets one.
    static UIColor systemBlueColor();
    /// A faint, translucent grey; less faint at high contrast.
    static UIColor tertiarySystemFillColor();

    /// This colour in both looks and at either contrast with another alpha, clamped to 0 … 1.
    UIColor colorWithAlphaComponent(double alpha) const;
    /// The components to draw with. Lives as long as this colour.
    const UIColorComponents& resolved(UIUserInterfaceStyle style, UIAccessibilityContrast contrast = UIAccessibilityContrast::Normal) const;

    friend bool operator==(const UIColor&, const UIColor&) = default;

private:
    /// A value for each look.
    struct Pair {
        UIColorComponents light;
        UIColorComponents dark;
        friend bool operator==(const Pair&, const Pair&) = default;
    };
    explicit UIColor(const UIColorComponents& all) : normal_{all, all}, high_{all, all} {}

    Pair normal_;
    Pair high_;
};

} // namespace gx
