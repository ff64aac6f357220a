#include "EntryHeader.h"

#include <algorithm>

#include "Theme.h"
#include "Translations.h"

using namespace gx;

namespace gallery {

namespace {

// From the message to the table. Chosen by eye.
constexpr CGFloat messageGap = 8;

} // namespace

bool EntryHeader::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = create<UILabel>(CGRectZero);
    title_->setFont(Theme::font(Theme::TextStyle::Title));
    title_->setTextColor(Theme::text());
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

void EntryHeader::setMessage(const std::string& message, bool isError) {
    message_->setColor(isError ? Theme::warning() : Theme::secondaryText());
    message_->setText(message);
    setNeedsLayout();
}

CGFloat EntryHeader::barHeight() const {
    if (!title_->isHidden()) return Theme::barHeight();
    return saveButton_->isHidden() ? 0 : Theme::controlHeight();
}

CGSize EntryHeader::sizeThatFits(CGSize available) const {
    const CGFloat messageHeight = message().empty() ? 0 : message_->sizeThatFits({available.width, 0}).height + messageGap;
    return {available.width, barHeight() + messageHeight};
}

void EntryHeader::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const CGFloat bar = barHeight();
    const CGFloat top = 0.5 * std::max(0.0, bar - Theme::controlHeight());
    const CGFloat saveWidth = saveButton_->sizeThatFits({}).width;
    const CGFloat openWidth = openButton_->sizeThatFits({}).width;
    const CGFloat buttonsX = std::max(0.0, size.width - saveWidth - openWidth);
    openButton_->setFrame(CGRectMake(buttonsX, top, openWidth, Theme::controlHeight()));
    saveButton_->setFrame(CGRectMake(buttonsX + openWidth, top, saveWidth, Theme::controlHeight()));
    title_->setFrame(CGRectMake(0, 0, buttonsX, bar));
    message_->setFrame(CGRectMake(0, bar, size.width, std::max(0.0, size.height - bar)));
}

} // namespace gallery
