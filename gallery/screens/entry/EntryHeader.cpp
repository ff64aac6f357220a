#include "EntryHeader.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"

using namespace gx;

namespace gallery {

namespace {

// From the message to the table, and above a title that has lines of its own. Chosen by eye.
constexpr CGFloat messageGap = 8;
constexpr CGFloat titleGap = 12;

} // namespace

/// From the leading edge.
struct EntryHeader::Frames {
    CGRect title;
    CGRect open;
    CGRect save;
    CGRect message;
    CGFloat height = 0;
};

bool EntryHeader::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Title, Theme::text());
    title_->setAccessibilityRole(UIAccessibilityRole::Heading);
    openButton_ = Button::buttonWithTitle_style("", Button::Style::Plain);
    saveButton_ = Button::buttonWithTitle_style("", Button::Style::Plain);
    message_ = create<Paragraph>(CGRectZero);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, openButton_, saveButton_, message_}) addSubview(view);
    return true;
}

void EntryHeader::showTexts() {
    title_->setText(Translations::text("Add workout"));
    openButton_->setTitle(Translations::text("Open"));
    saveButton_->setTitle(Translations::text("Save"));
    openButton_->setAccessibilityLabel(Translations::text("Open a workout"));
    saveButton_->setAccessibilityLabel(Translations::text("Save the workout"));
    setNeedsLayout();
}

void EntryHeader::setShowsTitle(bool shows) {
    title_->setHidden(!shows);
    setNeedsLayout();
}

void EntryHeader::setShowsButtons(bool shows) {
    openButton_->setHidden(!shows);
    saveButton_->setHidden(!shows);
    setNeedsLayout();
}

void EntryHeader::setMessage(const std::string& message, MessageKind kind) {
    message_->setColor(kind == MessageKind::Error ? Theme::warning() : Theme::secondaryText());
    message_->setText(message);
    setNeedsLayout();
}

// Layout

EntryHeader::Frames EntryHeader::framesForWidth(CGFloat width) const {
    Frames frames;
    const bool hasTitle = !title_->isHidden();
    const bool hasButtons = !saveButton_->isHidden();
    const CGSize open = hasButtons ? openButton_->sizeThatFits({width, 0}) : CGSize{};
    const CGSize save = hasButtons ? saveButton_->sizeThatFits({width, 0}) : CGSize{};
    const bool isRow = open.width + save.width <= width;
    const CGFloat buttonsHeight = isRow ? std::max(open.height, save.height) : open.height + save.height;
    const CGFloat besideButtons = std::max(0.0, width - open.width - save.width);
    const bool isBar = hasTitle && isRow && title_->widthInOneLine() <= besideButtons;

    CGFloat buttonsY = 0;
    if (isBar) {
        const CGFloat bar = std::max({Theme::barHeight(), buttonsHeight, std::ceil(title_->sizeThatFits({besideButtons, 0}).height)});
        frames.title = CGRectMake(0, 0, besideButtons, bar);
        buttonsY = std::round(0.5 * (bar - buttonsHeight));
        frames.height = bar;
    } else {
        if (hasTitle) {
            frames.title = CGRectMake(0, titleGap, width, std::ceil(title_->sizeThatFits({width, 0}).height));
            buttonsY = CGRectGetMaxY(frames.title);
        }
        frames.height = buttonsY + buttonsHeight;
    }
    const CGFloat openX = isRow ? width - save.width - open.width : width - open.width;
    frames.open = CGRectMake(openX, buttonsY, open.width, open.height);
    frames.save = CGRectMake(width - save.width, isRow ? buttonsY : buttonsY + open.height, save.width, save.height);
    const CGFloat messageHeight = message().empty() ? 0 : std::ceil(message_->sizeThatFits({width, 0}).height) + messageGap;
    frames.message = CGRectMake(0, frames.height, width, messageHeight);
    frames.height += messageHeight;
    return frames;
}

CGSize EntryHeader::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void EntryHeader::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = bounds().size.width;
    const Frames frames = framesForWidth(width);
    title_->setFrame(ReadingDirection::frame(frames.title, width));
    openButton_->setFrame(ReadingDirection::frame(frames.open, width));
    saveButton_->setFrame(ReadingDirection::frame(frames.save, width));
    message_->setFrame(ReadingDirection::frame(frames.message, width));
}

} // namespace gallery
