#include "UIImageView.h"

#include <algorithm>

#include "UIGraphicsContext.h"

namespace gx {

const NSClass UIImageView::kind = {"UIImageView"};

bool UIImageView::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setUserInteractionEnabled(false);
    return true;
}

bool UIImageView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    setUserInteractionEnabled(false);
    const NSInteger mode = coder ? coder->decodeIntegerForKey("contentMode") : NSInteger{UIViewContentModeScaleToFill};
    for (const UIViewContentMode known : {UIViewContentModeScaleAspectFit, UIViewContentModeScaleAspectFill, UIViewContentModeCenter}) {
        if (mode == known) contentMode_ = known;
    }
    return true;
}

void UIImageView::setImage(Ref<UIImage> image) {
    if (image == image_) return;
    image_ = std::move(image);
    setNeedsDisplay();
}

void UIImageView::setContentMode(UIViewContentMode mode) {
    if (mode == contentMode_) return;
    contentMode_ = mode;
    setNeedsDisplay();
}

CGSize UIImageView::sizeThatFits(CGSize) const { return image_ ? image_->size() : CGSize{}; }

void UIImageView::drawRect(UIGraphicsContext& context, CGRect rect) {
    if (!image_ || CGRectIsEmpty(rect)) return;
    CGSize size = image_->size();
    const CGFloat fitX = rect.size.width / size.width;
    const CGFloat fitY = rect.size.height / size.height;
    switch (contentMode_) {
    case UIViewContentModeScaleToFill:
        size = rect.size;
        break;
    case UIViewContentModeScaleAspectFit:
        size = {size.width * std::min(fitX, fitY), size.height * std::min(fitX, fitY)};
        break;
    case UIViewContentModeScaleAspectFill:
        size = {size.width * std::max(fitX, fitY), size.height * std::max(fitX, fitY)};
        break;
    case UIViewContentModeCenter:
        break;
    }
    const CGPoint origin = {CGRectGetMidX(rect) - 0.5 * size.width, CGRectGetMidY(rect) - 0.5 * size.height};
    context.drawImage(*image_, {origin, size});
}

// Accessibility

std::optional<std::string> UIImageView::accessibilityLabel() const {
    std::optional<std::string> label = UIView::accessibilityLabel();
    return label || !image_ ? label : image_->accessibilityLabel();
}

UIAccessibilityElements UIImageView::accessibilityElements() {
    return accessibilityElementAndSubviews(refTo<UIView>(this), UIAccessibilityRole::Image);
}

} // namespace gx
