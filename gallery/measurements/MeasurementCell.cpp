#include "MeasurementCell.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat inset = Theme::cardPadding;
constexpr CGFloat gap = 12;

/// Above and below the texts. Large lines have room of their own.
CGFloat padding() { return std::round(10 + 6 * std::max(0.0, Theme::textScale() - 1)); }

} // namespace

/// From the leading edge, and from the top of the texts.
struct MeasurementCell::Frames {
    CGRect name;
    CGRect value;
    bool areStacked = false;
    CGFloat height = 0;
};

bool MeasurementCell::initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    if (!UITableViewCell::initWithStyle_reuseIdentifier(style, reuseIdentifier)) return false;
    setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
    name_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Body, Theme::text());
    value_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Strong, Theme::secondaryText());
    for (const Ref<Paragraph>& text : {name_, value_}) contentView()->addSubview(text);
    return true;
}

void MeasurementCell::setName_value(const std::string& name, const std::string& value) {
    if (name_->text() == name && value_->text() == value) return;
    name_->setText(name);
    value_->setText(value);
    setNeedsLayout();
}

void MeasurementCell::setOpen(bool open) {
    value_->setColor(open ? Theme::accent() : Theme::secondaryText());
    setAccessibilityExpanded(open);
}

// Layout

CGFloat MeasurementCell::height() {
    // More than any font needs, so that rows of one line have one height. At scale 1 it is the
    // table's own row height.
    constexpr double lineHeight = 1.6;
    return std::ceil(lineHeight * Theme::font(Theme::TextStyle::Body)->pointSize()) + 2 * padding();
}

MeasurementCell::Frames MeasurementCell::framesForWidth(CGFloat width) const {
    const CGFloat inside = std::max(0.0, width - 2 * inset);
    const CGFloat valueWidth = std::min(inside, std::ceil(value_->widthInOneLine()));
    const CGFloat nameWidth = std::max(0.0, inside - valueWidth - gap);
    Frames frames;
    frames.areStacked = name_->widthInOneLine() > nameWidth;
    const CGFloat nameHeight = std::ceil(name_->sizeThatFits({frames.areStacked ? inside : nameWidth, 0}).height);
    const CGFloat valueHeight = std::ceil(value_->sizeThatFits({frames.areStacked ? inside : valueWidth, 0}).height);
    if (frames.areStacked) {
        frames.name = CGRectMake(inset, 0, inside, nameHeight);
        frames.value = CGRectMake(inset, nameHeight, inside, valueHeight);
        frames.height = nameHeight + valueHeight;
    } else {
        frames.height = std::max(nameHeight, valueHeight);
        frames.name = CGRectMake(inset, 0, nameWidth, frames.height);
        frames.value = CGRectMake(inset + inside - valueWidth, 0, valueWidth, frames.height);
    }
    return frames;
}

CGSize MeasurementCell::sizeThatFits(CGSize available) const {
    return {available.width, std::max(height(), framesForWidth(available.width).height + 2 * padding())};
}

void MeasurementCell::layoutSubviews() {
    UITableViewCell::layoutSubviews();
    const CGSize size = contentView()->bounds().size;
    const Frames frames = framesForWidth(size.width);
    const CGFloat top = frames.areStacked ? std::max(0.0, 0.5 * (size.height - frames.height)) : 0;
    const CGFloat extraHeight = frames.areStacked ? 0 : size.height - frames.height;
    const auto place = [&](const Ref<Paragraph>& text, CGRect frame) {
        const CGRect moved = CGRectMake(frame.origin.x, frame.origin.y + top, frame.size.width, frame.size.height + extraHeight);
        text->setFrame(ReadingDirection::frame(moved, size.width));
    };
    place(name_, frames.name);
    place(value_, frames.value);
    value_->setTextAlignment(frames.areStacked ? NSTextAlignmentNatural : ReadingDirection::trailingAlignment());
}

} // namespace gallery
