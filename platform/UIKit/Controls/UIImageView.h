#pragma once

#include "GXExport.h"
#include "UIImage.h"
#include "UIView.h"

namespace gx {

/// Where an image is drawn in the bounds.
enum UIViewContentMode {
    UIViewContentModeScaleToFill = 0,     ///< stretched over the bounds
    UIViewContentModeScaleAspectFit = 1,  ///< as large as shows everything, its shape kept
    UIViewContentModeScaleAspectFill = 2, ///< as small as covers the bounds, its shape kept
    UIViewContentModeCenter = 4           ///< in its own size, in the middle
};

/// Shows one image in its bounds. Takes no touches; for a picture to tap, put it into a view of
/// your own.
class GX_EXPORT UIImageView : public UIView {
public:
    /// Stands for this class in `isKindOfClass`.
    static const NSClass kind;
    bool isKindOfClass(const NSClass& asked) const override { return &asked == &kind || UIView::isKindOfClass(asked); }

    /// An empty view that takes no touches.
    bool initWithFrame(CGRect frame) override;
    /// Also restores "contentMode".
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    /// The image shown; empty for none. Held strongly.
    const Ref<UIImage>& image() const { return image_; }
    void setImage(Ref<UIImage> image);
    /// Default: stretched over the bounds.
    UIViewContentMode contentMode() const { return contentMode_; }
    void setContentMode(UIViewContentMode mode);

    /// The size of the image.
    CGSize sizeThatFits(CGSize available) const override;
    bool showsSomething() const override { return image_ != nullptr; }
    void drawRect(UIGraphicsContext& context, CGRect rect) override;

    /// The image's, unless a label was set.
    std::optional<std::string> accessibilityLabel() const override;
    /// Itself as an image, if it has a label, then what its subviews offer. A picture without one
    /// is decoration.
    UIAccessibilityElements accessibilityElements() override;

private:
    Ref<UIImage> image_;
    UIViewContentMode contentMode_ = UIViewContentModeScaleToFill;
};

} // namespace gx
