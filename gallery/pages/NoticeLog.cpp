#include "NoticeLog.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UITextEngine.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat headingGap = 8;
constexpr CGFloat columnGap = 12;
constexpr CGFloat rowPadding = 5; // Above and below a notice of several lines.

// Narrower than this, few facts have room beside the words.
constexpr CGFloat oneLineWidth = 290;

CGFloat widthInside(CGFloat width) { return std::max(0.0, width - 2 * Theme::cardPadding); }
CGFloat lineHeight(Theme::TextStyle style) { return UITextEngine::shared()->sizeOfText_font("", *Theme::font(style)).height; }
CGFloat heightOfOneLine() { return Theme::controlHeight() - 8; }

/// The height of a full list.
CGFloat heightOfRows(CGFloat width) {
    constexpr CGFloat fewest = 4; // Notices of two lines; chosen by eye.
    if (width >= Theme::scaled(oneLineWidth)) return static_cast<CGFloat>(NoticeLog::capacity) * heightOfOneLine();
    const CGFloat two = lineHeight(Theme::TextStyle::Strong) + lineHeight(Theme::TextStyle::Caption) + 2 * rowPadding;
    return fewest * std::max(48.0, std::ceil(two));
}

} // namespace

bool NoticeLog::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(Theme::card());
    setCornerRadius(Theme::cardRadius);
    heading_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::StrongCaption, Theme::secondaryText());
    heading_->setAccessibilityRole(UIAccessibilityRole::Heading);
    addSubview(heading_);
    invitation_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Body, Theme::secondaryText());
    addSubview(invitation_);
    for (std::size_t i = 0; i < capacity; ++i) {
        // The newest notice is the one in the accent colour.
        const UIColor color = i == 0 ? Theme::accent() : Theme::text();
        const Row row = {Paragraph::paragraphWithStyle_color(Theme::TextStyle::Strong, color),
                         Paragraph::paragraphWithStyle_color(Theme::TextStyle::Caption, Theme::secondaryText())};
        addSubview(row.words);
        addSubview(row.facts);
        rows_.push_back(row);
    }
    showTexts();
    return true;
}

void NoticeLog::showTexts() {
    heading_->setText(Translations::text("What the delegate was told"));
    invitation_->setText(Translations::text("Nothing yet: turn the wheel."));
    invitation_->setHidden(false);
    notices_.clear();
    for (const Row& row : rows_) {
        row.words->setText("");
        row.facts->setText("");
    }
    setNeedsLayout();
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

CGFloat NoticeLog::headingHeight(CGFloat width) const { return std::ceil(heading_->sizeThatFits({width, 0}).height); }

CGSize NoticeLog::sizeThatFits(CGSize available) const {
    const CGFloat width = widthInside(available.width);
    const CGFloat top = Theme::cardPadding + headingHeight(width) + headingGap;
    return {available.width, top + heightOfRows(width) + 0.5 * Theme::cardPadding};
}

bool NoticeLog::hasOneLine(const Row& row, CGFloat width) {
    return std::ceil(row.words->widthInOneLine()) + columnGap + row.facts->widthInOneLine() <= width;
}

CGFloat NoticeLog::heightOfRow(const Row& row, CGFloat width) {
    if (hasOneLine(row, width)) return heightOfOneLine();
    return std::ceil(row.words->sizeThatFits({width, 0}).height + row.facts->sizeThatFits({width, 0}).height) + 2 * rowPadding;
}

void NoticeLog::placeRow(const Row& row, CGFloat y, CGFloat width, CGFloat height) {
    const CGFloat x = Theme::cardPadding;
    const auto place = [this](Paragraph& text, CGRect frame) { text.setFrame(ReadingDirection::frame(frame, bounds().size.width)); };
    const bool isBeside = hasOneLine(row, width);
    row.facts->setTextAlignment(isBeside ? ReadingDirection::trailingAlignment() : NSTextAlignmentNatural);
    const CGFloat top = y + std::floor(0.5 * (height - heightOfRow(row, width)));
    if (isBeside) {
        const CGFloat wordsWidth = std::ceil(row.words->widthInOneLine());
        const CGFloat factsX = wordsWidth + columnGap;
        place(*row.words, CGRectMake(x, top, wordsWidth, heightOfOneLine()));
        place(*row.facts, CGRectMake(x + factsX, top, width - factsX, heightOfOneLine()));
        return;
    }
    const CGFloat wordsHeight = row.words->sizeThatFits({width, 0}).height;
    place(*row.words, CGRectMake(x, top + rowPadding, width, wordsHeight));
    place(*row.facts, CGRectMake(x, top + rowPadding + wordsHeight, width, row.facts->sizeThatFits({width, 0}).height));
}

void NoticeLog::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = widthInside(bounds().size.width);
    const CGFloat x = Theme::cardPadding;
    heading_->setFrame(CGRectMake(x, x, width, headingHeight(width)));
    CGFloat y = x + headingHeight(width) + headingGap;
    invitation_->setFrame(CGRectMake(x, y, width, std::max(heightOfOneLine(), std::ceil(invitation_->sizeThatFits({width, 0}).height))));

    CGFloat room = heightOfRows(width);
    std::size_t shown = 0;
    for (; shown < notices_.size(); ++shown) {
        const CGFloat height = heightOfRow(rows_[shown], width);
        if (shown > 0 && height > room) break;
        room -= height;
    }
    const bool isFull = shown < notices_.size();
    const CGFloat share = isFull ? std::max(0.0, std::floor(room / static_cast<CGFloat>(shown))) : 0;
    lines_.clear();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        row.words->setHidden(i >= shown);
        row.facts->setHidden(i >= shown);
        if (i >= shown) continue;
        if (i > 0) lines_.push_back(y);
        const CGFloat height = heightOfRow(row, width) + share;
        placeRow(row, y, width, height);
        y += height;
    }
    setNeedsDisplay();
}

void NoticeLog::drawRect(UIGraphicsContext& context, CGRect rect) {
    for (const CGFloat y : lines_) {
        context.fillRect(CGRectMake(Theme::cardPadding, y, widthInside(rect.size.width), 1), Theme::hairline());
    }
}

} // namespace gallery
