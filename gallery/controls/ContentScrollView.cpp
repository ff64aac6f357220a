#include "ContentScrollView.h"

#include <algorithm>
#include <cmath>

using namespace gx;

namespace gallery {

void ContentScrollView::setContent(Ref<UIView> content) {
    if (content_) content_->removeFromSuperview();
    content_ = std::move(content);
    if (content_) addSubview(content_);
    stop();
    setOffset(0);
    setNeedsLayout();
}

CGFloat ContentScrollView::offset() const { return std::clamp(contentOffset().y, 0.0, maxOffset()); }

void ContentScrollView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    if (!content_) return;
    const CGSize size = bounds().size;
    const CGFloat height = std::max(size.height, std::ceil(content_->sizeThatFits({size.width, 0}).height));
    setContentSize({size.width, height});
    content_->setFrame(CGRectMake(0, 0, size.width, height));
}

} // namespace gallery
