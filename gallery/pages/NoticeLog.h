#pragma once

#include <string>
#include <vector>

#include "Paragraph.h"
#include "PickerDemo.h"

namespace gallery {

/// The latest calls of a delegate, newest on top.
///
/// - Its height depends on its width and the text size alone, so that nothing on the page moves
///   while a wheel spins.
/// - Where the facts have no room beside the words they stand below them.
/// - Notices for which there is no room are hidden. Then the others share the room that is left.
class NoticeLog : public gx::UIView {
public:
    static constexpr std::size_t capacity = 6;

    bool initWithFrame(gx::CGRect frame) override;

    /// Shows its own texts in the current language, and no notices: those are in the one before.
    void showTexts();
    /// Drops the oldest notice when the list is full.
    void addNotice(DelegateNotice notice);
    /// Newest first.
    const std::vector<DelegateNotice>& notices() const { return notices_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    struct Row {
        gx::Ref<Paragraph> words;
        gx::Ref<Paragraph> facts;
    };
    gx::CGFloat headingHeight(gx::CGFloat width) const;
    static bool hasOneLine(const Row& row, gx::CGFloat width);
    static gx::CGFloat heightOfRow(const Row& row, gx::CGFloat width);
    /// Places a row in the middle of this height.
    void placeRow(const Row& row, gx::CGFloat y, gx::CGFloat width, gx::CGFloat height);

    std::vector<DelegateNotice> notices_;
    gx::Ref<Paragraph> heading_;
    gx::Ref<Paragraph> invitation_;
    std::vector<Row> rows_;
    std::vector<gx::CGFloat> lines_; // Where lines between the visible notices are.
};

} // namespace gallery
