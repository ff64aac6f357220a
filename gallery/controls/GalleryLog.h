#pragma once

#include <string>
#include <vector>

#include "GalleryExhibit.h"
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// The latest notices that a delegate was told, newest on top.
///
/// Its height is that of a full list from the start, so that nothing on the page moves while a wheel turns. On a small phone the facts
/// stand below the words, and fewer notices are seen.
class GalleryLog : public gx::UIView {
public:
    static constexpr std::size_t capacity = 6;

    bool initWithFrame(gx::CGRect frame) override;

    /// Drops the oldest one when the list is full.
    void addNotice(GalleryNotice notice);
    /// Newest first.
    const std::vector<GalleryNotice>& notices() const { return notices_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    struct Arrangement;
    struct Row {
        gx::Ref<gx::UILabel> words;
        gx::Ref<gx::UILabel> facts;
    };

    std::vector<GalleryNotice> notices_;
    gx::Ref<gx::UILabel> heading_;
    gx::Ref<gx::UILabel> invitation_;
    std::vector<Row> rows_;
};

} // namespace gallery
