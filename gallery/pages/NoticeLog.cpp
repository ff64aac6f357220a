#include "NoticeLog.h"

#include <algorithm>

#include "Theme.h"
#include <GXUIPickers/UIGraphicsContext.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat headingHeight = 28;
constexpr CGFloat columnGap = 12;

// Narrower than this, long facts would be cut beside the words.
constexpr CGFloat oneLineWidth = 290;

Ref<UILabel> makeLabel(const Ref<UIFont>& font, const UIColor& color) {
    auto label = create<UILabel>(CGRectZero);
    label->setFont(font);
    label->setTextColor(color);
    return label;
}

} // namespace

struct NoticeLog::Arrangement {
    explicit Arrangement(CGFloat cardWidth)
        : width(std::max(0.0, cardWidth - 2 * Theme::cardPadding)), hasOneLine(width >= oneLineWidth), rowHeight(hasOneLine ? 32 : 48),
          rowCount(hasOneLine ? capacity : 4) {}

    CGFloat yOfRow(std::size_t index) const { return Theme::cardPadding + headingHeight + static_cast<CGFloat>(index) * rowHeight; }
    CGFloat height() const { return yOfRow(rowCount) + 0.5 * Theme::cardPadding; }

    CGFloat width;
    bool hasOneLine;
    CGFloat rowHeight;
    std::size_t rowCount;
};

bool NoticeLog::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(Theme::card());
    setCornerRadius(Theme::cardRadius);
    heading_ = makeLabel(Theme::strongCaptionFont(), Theme::secondaryText());
    heading_->setText("What the delegate was told");
    addSubview(heading_);
    invitation_ = makeLabel(Theme::bodyFont(), Theme::secondaryText());
    invitation_->setText("Nothing yet: turn the wheel.");
    addSubview(invitation_);
    for (std::size_t i = 0; i < capacity; ++i) {
        // The newest notice is the one in the accent colour.
        const UIColor color = i == 0 ? Theme::accent() : Theme::text();
        const Row row = {makeLabel(Theme::strongFont(), color), makeLabel(Theme::captionFont(), Theme::secondaryText())};
        addSubview(row.words);
        addSubview(row.facts);
        rows_.push_back(row);
    }
    return true;
}

void NoticeLog::addNotice(DelegateNotice notice) {
    notices_.insert(notices_.begin(), std::move(notice));
    if (notices_.size() > capacity) notices_.pop_back();
    for (std::size_t i = 0; i < notices_.size(); ++i) {
        rows_[i].words->setText(notices_[i].words);
        rows_[i].facts->setText(notices_[i].facts);
    }
    invitation_->setHidden(true);
    setNeedsLayout();
}

CGSize NoticeLog::sizeThatFits(CGSize available) const { return {available.width, Arrangement(available.width).height()}; }

void NoticeLog::layoutSubviews() {
    UIView::layoutSubviews();
    const Arrangement rows(bounds().size.width);
    const CGFloat x = Theme::cardPadding;
    heading_->setFrame(CGRectMake(x, Theme::cardPadding, rows.width, 20));
    invitation_->setFrame(CGRectMake(x, rows.yOfRow(0), rows.width, rows.rowHeight));
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        const CGFloat y = rows.yOfRow(i);
        row.words->setHidden(i >= rows.rowCount);
        row.facts->setHidden(i >= rows.rowCount);
        row.facts->setTextAlignment(rows.hasOneLine ? NSTextAlignmentRight : NSTextAlignmentLeft);
        if (rows.hasOneLine) {
            const CGFloat wordsWidth = std::min(rows.width, row.words->sizeThatFits({}).width);
            const CGFloat factsX = wordsWidth + columnGap;
            row.words->setFrame(CGRectMake(x, y, wordsWidth, rows.rowHeight));
            row.facts->setFrame(CGRectMake(x + factsX, y, std::max(0.0, rows.width - factsX), rows.rowHeight));
        } else {
            row.words->setFrame(CGRectMake(x, y + 4, rows.width, 21));
            row.facts->setFrame(CGRectMake(x, y + 25, rows.width, 18));
        }
    }
}

void NoticeLog::drawRect(UIGraphicsContext& context, CGRect rect) {
    const Arrangement rows(rect.size.width);
    for (std::size_t i = 1; i < std::min(notices_.size(), rows.rowCount); ++i) {
        context.fillRect(CGRectMake(Theme::cardPadding, rows.yOfRow(i), rows.width, 1), Theme::hairline());
    }
}

} // namespace gallery
