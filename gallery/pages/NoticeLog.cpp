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

CGFloat NoticeLog::placeRow(const Row& row, CGFloat y, CGFloat width) {
    const CGFloat x = Theme::cardPadding;
    const auto place = [this](Paragraph& text, CGRect frame) { text.setFrame(ReadingDirection::frame(frame, bounds().size.width)); };
    const CGFloat wordsWidth = std::ceil(row.words->widthInOneLine());
    const CGFloat factsX = wordsWidth + columnGap;
    const bool hasOneLine = factsX + row.facts->widthInOneLine() <= width;
    row.facts->setTextAlignment(hasOneLine ? ReadingDirection::trailingAlignment() : NSTextAlignmentNatural);
    if (hasOneLine) {
        place(*row.words, CGRectMake(x, y, wordsWidth, heightOfOneLine()));
        place(*row.facts, CGRectMake(x + factsX, y, width - factsX, heightOfOneLine()));
        return heightOfOneLine();
    }
    const CGFloat wordsHeight = row.words->sizeThatFits({width, 0}).height;
    const CGFloat factsHeight = row.facts->sizeThatFits({width, 0}).height;
    place(*row.words, CGRectMake(x, y + rowPadding, width, wordsHeight));
    place(*row.facts, CGRectMake(x, y + rowPadding + wordsHeight, width, factsHeight));
    return std::ceil(wordsHeight + factsHeight) + 2 * rowPadding;
}

void NoticeLog::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = widthInside(bounds().size.width);
    const CGFloat x = Theme::cardPadding;
    heading_->setFrame(CGRectMake(x, x, width, headingHeight(width)));
    CGFloat y = x + headingHeight(width) + headingGap;
    const CGFloat bottom = y + heightOfRows(width);
    invitation_->setFrame(CGRectMake(x, y, width, std::max(heightOfOneLine(), std::ceil(invitation_->sizeThatFits({width, 0}).height))));
    lines_.clear();
    bool hasRoom = true;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        const CGFloat height = i < notices_.size() ? placeRow(row, y, width) : 0;
        hasRoom = hasRoom && i < notices_.size() && (i == 0 || y + height <= bottom);
        row.words->setHidden(!hasRoom);
        row.facts->setHidden(!hasRoom);
        if (!hasRoom) continue;
        if (i > 0) lines_.push_back(y);
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
