#pragma once

#include <optional>

#include "UIView.h"

namespace gallery {

/// Shows a view that is higher than there is room: it moves up and down under a finger, the mouse wheel or a trackpad, and glides on after
/// a swift stroke.
///
/// The content is as wide as this view and as high as its `sizeThatFits` says. Touches that a subview keeps to itself, such as those on a
/// picker's wheel, never scroll. Invariant: the offset lies between 0 and `maxOffset`.
class GalleryScroll : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    const gx::Ref<gx::UIView>& content() const { return content_; }
    /// Begins at the top.
    void setContent(gx::Ref<gx::UIView> content);
    /// How far the content is moved up.
    gx::CGFloat offset() const { return offset_; }
    void setOffset(gx::CGFloat offset);
    gx::CGFloat maxOffset() const;

    void layoutSubviews() override;
    void touchBegan(const gx::UITouch& touch) override;
    void touchMoved(const gx::UITouch& touch) override;
    void touchEnded(const gx::UITouch& touch) override;
    void touchCancelled(const gx::UITouch& touch) override;
    bool scrolled(const gx::UIScroll& scroll) override;
    bool advanceToTime(gx::NSTimeInterval time) override;

protected:
    void drawSubviews(gx::UIGraphicsContext& context) override;

private:
    gx::Ref<gx::UIView> content_;
    gx::CGFloat contentHeight_ = 0;
    gx::CGFloat offset_ = 0;

    std::optional<std::int64_t> finger_;
    bool isDragging_ = false;
    gx::CGFloat lastY_ = 0;
    gx::NSTimeInterval lastTime_ = 0;
    double velocity_ = 0; // In points a second, positive toward the end.
    std::optional<gx::NSTimeInterval> glideTime_;
};

} // namespace gallery
