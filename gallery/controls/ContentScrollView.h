#pragma once

#include <GXUIPickers/UIScrollView.h>

namespace gallery {

/// Scrolls one view, which is as wide as this one and as high as its `sizeThatFits` returns.
class ContentScrollView : public gx::UIScrollView {
public:
    const gx::Ref<gx::UIView>& content() const { return content_; }
    /// Shows another view, from its top.
    void setContent(gx::Ref<gx::UIView> content);
    /// How far the content is scrolled: from 0 to `maxOffset`, also while a finger pulls it beyond
    /// an end.
    gx::CGFloat offset() const;
    void setOffset(gx::CGFloat offset) { setContentOffset({0, offset}); }
    gx::CGFloat maxOffset() const { return highestOffset(); }

    void layoutSubviews() override;

private:
    gx::Ref<gx::UIView> content_;
};

} // namespace gallery
