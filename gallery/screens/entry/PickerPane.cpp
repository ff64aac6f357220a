#include "PickerPane.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

// The rows of a wheel that are visible. More than nine look like a list; chosen by eye.
constexpr double mostRowsOfWheel = 9;
constexpr double fewestRowsOfWheel = 3;
constexpr CGFloat padding = Theme::cardPadding;
constexpr CGFloat nameHeight = 24;
constexpr CGFloat valueHeight = 40;

CGFloat rowHeight() { return GXStyleSheet::globalStyleSheet()->pickerRowHeight(); }

} // namespace

bool PickerPane::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    card_ = Theme::makeCard();
    card_->setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor()); // As the cells.
    name_ = create<UILabel>(CGRectZero);
    name_->setFont(Theme::font(Theme::TextStyle::Heading));
    name_->setTextColor(Theme::secondaryText());
    value_ = create<UILabel>(CGRectZero);
    value_->setFont(Theme::font(Theme::TextStyle::Title));
    value_->setTextColor(Theme::accent());
    for (const Ref<UILabel>& label : {name_, value_}) {
        label->setText("");
        label->setTextAlignment(NSTextAlignmentCenter);
        card_->addSubview(label);
    }
    hint_ = create<Paragraph>(CGRectZero);
    card_->addSubview(hint_);
    addSubview(card_);
    showMeasurement_cell(nullptr, nullptr);
    return true;
}

void PickerPane::showMeasurement_cell(Ref<Measurement> measurement, Ref<UITableViewCell> cell) {
    if (cell_ && cell_ != cell && cell_->superview() == card_) cell_->removeFromSuperview();
    measurement_ = std::move(measurement);
    cell_ = std::move(cell);
    if (cell_) {
        card_->addSubview(cell_);
        measurement_->showInCell(cell_);
    }
    name_->setHidden(!cell_);
    value_->setHidden(!cell_);
    hint_->setHidden(cell_ != nullptr);
    showTexts();
}

void PickerPane::showTexts() {
    hint_->setText(Translations::text("Choose a row to change its value."));
    name_->setText(measurement_ ? Translations::text(measurement_->name()) : "");
    value_->setText(measurement_ ? measurement_->valueText() : "");
    setNeedsLayout();
}

// Layout

CGFloat PickerPane::textsHeight() const { return padding + nameHeight + valueHeight; }

CGSize PickerPane::sizeThatFits(CGSize available) const {
    return {available.width, textsHeight() + fewestRowsOfWheel * rowHeight() + padding};
}

void PickerPane::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const CGFloat width = size.width;
    const CGFloat inside = std::max(0.0, width - 2 * padding);

    const CGFloat room = size.height - textsHeight() - padding;
    const CGFloat wheel = std::round(std::clamp(room, fewestRowsOfWheel * rowHeight(), mostRowsOfWheel * rowHeight()));
    const CGFloat height = textsHeight() + wheel + padding;
    card_->setFrame(CGRectMake(0, 0, width, height));
    const CGFloat hintHeight = hint_->sizeThatFits({inside, 0}).height;
    hint_->setFrame(CGRectMake(padding, std::round(0.5 * (height - hintHeight)), inside, hintHeight));
    name_->setFrame(CGRectMake(padding, padding, inside, nameHeight));
    value_->setFrame(CGRectMake(padding, padding + nameHeight, inside, valueHeight));
    if (!cell_) return;
    const CGSize before = cell_->bounds().size;
    cell_->setFrame(CGRectMake(0, textsHeight(), width, wheel));
    if (cell_->bounds().size != before) measurement_->fitPicker();
}

} // namespace gallery
