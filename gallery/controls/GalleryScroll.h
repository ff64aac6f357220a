#pragma once

#include <GXUIPickers/UIScrollView.h>

namespace gallery {

/// Scrolls one view: as wide as there is room, and as high as its `sizeThatFits` says.
class GalleryScroll : public gx::UIScrollView {
public:
    const gx::Ref<gx::UIView>& content() const { return content_; }
    /// Begins at the top.
    void setContent(gx::Ref<gx::UIView> content);
    /// How far the content is moved up: from 0 to `maxOffset`, also while a finger pulls it beyond an end.
    gx::CGFloat offset() const;
    void setOffset(gx::CGFloat offset) { setContentOffset({0, offset}); }
    gx::CGFloat maxOffset() const { return highestOffset(); }

    void layoutSubviews() override;

private:
    gx::Ref<gx::UIView> content_;
};

} // namespace gallery
