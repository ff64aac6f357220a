#include "GalleryLog.h"

#include <algorithm>

#include "GalleryTheme.h"
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

struct GalleryLog::Arrangement {
    explicit Arrangement(CGFloat cardWidth)
        : width(std::max(0.0, cardWidth - 2 * GalleryTheme::cardPadding)), hasOneLine(width >= oneLineWidth),
          rowHeight(hasOneLine ? 32 : 48), rowCount(hasOneLine ? capacity : 4) {}

    CGFloat yOfRow(std::size_t index) const { return GalleryTheme::cardPadding + headingHeight + static_cast<CGFloat>(index) * rowHeight; }
    CGFloat height() const { return yOfRow(rowCount) + 0.5 * GalleryTheme::cardPadding; }

    CGFloat width;
    bool hasOneLine;
    CGFloat rowHeight;
    std::size_t rowCount;
};

bool GalleryLog::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(GalleryTheme::card());
    setCornerRadius(GalleryTheme::cardRadius);
    heading_ = makeLabel(GalleryTheme::strongCaptionFont(), GalleryTheme::secondaryText());
    heading_->setText("What the delegate was told");
    addSubview(heading_);
    invitation_ = makeLabel(GalleryTheme::bodyFont(), GalleryTheme::secondaryText());
    invitation_->setText("Nothing yet: turn the wheel.");
    addSubview(invitation_);
    for (std::size_t i = 0; i < capacity; ++i) {
        // The newest one stands out; the older ones step back.
        const UIColor color = i == 0 ? GalleryTheme::accent() : GalleryTheme::text();
        const Row row = {makeLabel(GalleryTheme::strongFont(), color),
                         makeLabel(GalleryTheme::captionFont(), GalleryTheme::secondaryText())};
        addSubview(row.words);
        addSubview(row.facts);
        rows_.push_back(row);
    }
    return true;
}

void GalleryLog::addNotice(GalleryNotice notice) {
    notices_.insert(notices_.begin(), std::move(notice));
    if (notices_.size() > capacity) notices_.pop_back();
    for (std::size_t i = 0; i < notices_.size(); ++i) {
        rows_[i].words->setText(notices_[i].words);
        rows_[i].facts->setText(notices_[i].facts);
    }
    invitation_->setHidden(true);
    setNeedsLayout();
}

CGSize GalleryLog::sizeThatFits(CGSize available) const { return {available.width, Arrangement(available.width).height()}; }

void GalleryLog::layoutSubviews() {
    UIView::layoutSubviews();
    const Arrangement rows(bounds().size.width);
    const CGFloat x = GalleryTheme::cardPadding;
    heading_->setFrame(CGRectMake(x, GalleryTheme::cardPadding, rows.width, 20));
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

void GalleryLog::drawRect(UIGraphicsContext& context, CGRect rect) {
    const Arrangement rows(rect.size.width);
    for (std::size_t i = 1; i < std::min(notices_.size(), rows.rowCount); ++i) {
        context.fillRect(CGRectMake(GalleryTheme::cardPadding, rows.yOfRow(i), rows.width, 1), GalleryTheme::hairline());
    }
}

} // namespace gallery
