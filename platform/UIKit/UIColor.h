#pragma once

namespace gx {

/// The look that colours are shown in; a property of the window.
enum class UIUserInterfaceStyle { Light, Dark };

/// A colour as it is drawn: red, green, blue and alpha from 0 to 1, sRGB, not premultiplied.
struct UIColorComponents {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;
    friend bool operator==(const UIColorComponents&, const UIColorComponents&) = default;
};

/// A colour with a value for each look. It is resolved when it is drawn, so a window that changes from light
/// to dark only has to draw again.
class UIColor {
public:
    /// The clear colour.
    UIColor() = default;

    /// Components from 0 to 1; others, and NaN, are held to that range.
    static UIColor colorWithRed_green_blue_alpha(double red, double green, double blue, double alpha);
    static UIColor colorWithWhite_alpha(double white, double alpha);
    /// `rgb` as 0xRRGGBB.
    static UIColor colorWithHex(unsigned rgb, double alpha = 1);
    /// The light value of `light` in the light look, the dark value of `dark` in the dark one.
    static UIColor colorWithLight_dark(const UIColor& light, const UIColor& dark);

    static UIColor clearColor();
    static UIColor blackColor();
    static UIColor whiteColor();
    /// Text: near black in the light look, near white in the dark one.
    static UIColor labelColor();
    static UIColor secondaryLabelColor();
    /// The tint that a view has when nobody above it sets one.
    static UIColor systemBlueColor();
    /// A faint grey that lets what lies behind it through.
    static UIColor tertiarySystemFillColor();

    UIColor colorWithAlphaComponent(double alpha) const;
    const UIColorComponents& resolved(UIUserInterfaceStyle style) const;

    friend bool operator==(const UIColor&, const UIColor&) = default;

private:
    explicit UIColor(const UIColorComponents& both) : light_(both), dark_(both) {}

    UIColorComponents light_;
    UIColorComponents dark_;
};

} // namespace gx
