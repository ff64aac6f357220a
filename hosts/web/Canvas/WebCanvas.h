#pragma once

#include <vector>

#include <GXUIPickers/UIGraphicsContext.h>

namespace gx::web {

/// What a filled rectangle is for. The page gives it its looks, so no colour crosses over.
enum class WebShape : std::int32_t {
    Indicator = 0, ///< the selection indicator
    Outline = 1,   ///< its outline at high contrast
    Mark = 2       ///< the mark of a column, of the keys or of the pointer
};

/// Hands a frame to the page, as texts, pictures and rectangles with their places.
///
/// The page shows them as elements of its own. So colours are left to it, and so are clips: rows
/// fade out before they reach an edge.
class WebCanvas final : public UIGraphicsContext {
public:
    /// The page's font for texts in the system font.
    void setSystemFont(std::int32_t font) { systemFont_ = font; }

    void saveState() override;
    void restoreState() override;
    void translate(CGFloat x, CGFloat y) override;
    void scale(CGFloat x, CGFloat y) override;
    void clipToRect(CGRect rect) override;
    void multiplyAlpha(double alpha) override;

protected:
    void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) override;
    void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) override;
    void drawImageInRect(const UIImage& image, CGRect rect) override;

private:
    struct State {
        CGPoint origin;
        CGFloat scaleX = 1;
        CGFloat scaleY = 1;
        double alpha = 1;
        CGFloat home = 0;      // The horizontal origin without any scale.
        bool isScaled = false; // Rows alone are scaled.
    };
    CGPoint placeOf(CGPoint point) const;

    State state_;
    std::vector<State> saved_;
    std::int32_t systemFont_ = 0;
};

} // namespace gx::web
