#include "MeasurementCell.h"

#include <algorithm>
#include <cmath>

#include "Theme.h"
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat inset = Theme::cardPadding;
constexpr CGFloat rowPadding = 12;
constexpr CGFloat gap = 12;

CGFloat lineHeight() { return std::ceil(1.3 * Theme::font(Theme::TextStyle::Body)->pointSize()); }
/// Whether names and values are too wide to stand side by side on a phone. It depends on the scale
/// alone, so that rows keep their height while values change.
bool isStacked() { return Theme::textScale() > 1.25; }

} // namespace

bool MeasurementCell::initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    if (!UITableViewCell::initWithStyle_reuseIdentifier(style, reuseIdentifier)) return false;
    setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
    nameLabel_ = create<UILabel>(CGRectZero);
    nameLabel_->setFont(Theme::font(Theme::TextStyle::Body));
    nameLabel_->setTextAlignment(NSTextAlignmentNatural);
    nameLabel_->setText("");
    valueLabel_ = create<UILabel>(CGRectZero);
    valueLabel_->setFont(Theme::font(Theme::TextStyle::Strong));
    const bool isMirrored = NSLocale::currentLocale()->isRightToLeft();
    const NSTextAlignment atTheFarEdge = isMirrored ? NSTextAlignmentLeft : NSTextAlignmentRight;
    valueLabel_->setTextAlignment(isStacked() ? NSTextAlignmentNatural : atTheFarEdge);
    valueLabel_->setText("");
    for (const Ref<UILabel>& label : {nameLabel_, valueLabel_}) contentView()->addSubview(label);
    setOpen(false);
    return true;
}

void MeasurementCell::setName_value(const std::string& name, const std::string& value) {
    if (nameLabel_->text() == name && valueLabel_->text() == value) return;
    nameLabel_->setText(name);
    valueLabel_->setText(value);
    setNeedsLayout();
}

void MeasurementCell::setOpen(bool open) { valueLabel_->setTextColor(open ? Theme::accent() : Theme::secondaryText()); }

CGFloat MeasurementCell::height() { return (isStacked() ? 2 : 1) * lineHeight() + 2 * rowPadding; }

void MeasurementCell::layoutSubviews() {
    UITableViewCell::layoutSubviews();
    const CGSize size = contentView()->bounds().size;
    const CGFloat width = std::max(0.0, size.width - 2 * inset);
    const auto placeStacked = [&](CGFloat y, CGFloat height) {
        nameLabel_->setFrame(CGRectMake(inset, y, width, height));
        valueLabel_->setFrame(CGRectMake(inset, y + height, width, height));
    };
    if (isStacked()) return placeStacked(rowPadding, lineHeight());
    const CGFloat valueWidth = std::min(width, std::ceil(valueLabel_->sizeThatFits(size).width));
    const CGFloat nameWidth = std::max(0.0, width - valueWidth - gap);
    // Some languages have long words. The row keeps its height, which is enough for two close
    // lines.
    if (nameLabel_->sizeThatFits(size).width > nameWidth) return placeStacked(0, 0.5 * size.height);
    const bool isMirrored = NSLocale::currentLocale()->isRightToLeft();
    valueLabel_->setFrame(CGRectMake(isMirrored ? inset : inset + width - valueWidth, 0, valueWidth, size.height));
    nameLabel_->setFrame(CGRectMake(isMirrored ? inset + width - nameWidth : inset, 0, nameWidth, size.height));
}

} // namespace gallery
