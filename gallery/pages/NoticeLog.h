#pragma once

#include <string>
#include <vector>

#include "PickerDemo.h"
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// The latest calls of a delegate, newest on top.
///
/// It is as high as a full list from the start, so that nothing on the page moves while a wheel
/// spins. On a small phone the facts stand below the words, and fewer notices are visible.
class NoticeLog : public gx::UIView {
public:
    static constexpr std::size_t capacity = 6;

    bool initWithFrame(gx::CGRect frame) override;

    /// Drops the oldest notice when the list is full.
    void addNotice(DelegateNotice notice);
    /// Newest first.
    const std::vector<DelegateNotice>& notices() const { return notices_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    struct Arrangement;
    struct Row {
        gx::Ref<gx::UILabel> words;
        gx::Ref<gx::UILabel> facts;
    };

    std::vector<DelegateNotice> notices_;
    gx::Ref<gx::UILabel> heading_;
    gx::Ref<gx::UILabel> invitation_;
    std::vector<Row> rows_;
};

} // namespace gallery
