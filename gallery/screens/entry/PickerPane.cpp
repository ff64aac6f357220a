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

constexpr CGFloat padding = Theme::cardPadding;
// From the value to the wheel. Chosen by eye.
constexpr CGFloat valueGap = 8;

CGFloat lowestWheel() { return Theme::fewestRowsOfWheel * GXStyleSheet::globalStyleSheet()->pickerRowHeight(); }
CGFloat highestWheel() { return Theme::mostRowsOfWheel * GXStyleSheet::globalStyleSheet()->pickerRowHeight(); }

} // namespace

bool PickerPane::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    card_ = Theme::makeCard();
    card_->setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor()); // As the cells.
    name_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Heading, Theme::secondaryText());
    value_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Title, Theme::accent());
    name_->setAccessibilityRole(UIAccessibilityRole::Heading);
    hint_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Body, Theme::secondaryText());
    for (const Ref<Paragraph>& text : {name_, value_, hint_}) {
        text->setTextAlignment(NSTextAlignmentCenter);
        card_->addSubview(text);
    }
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

/// The lines above the wheel, in the card.
struct PickerPane::Texts {
    CGRect name;
    CGRect value;
    CGFloat height = 0;
};

PickerPane::Texts PickerPane::textsForWidth(CGFloat width) const {
    const CGFloat inside = std::max(0.0, width - 2 * padding);
    Texts texts;
    texts.name = CGRectMake(padding, padding, inside, std::ceil(name_->sizeThatFits({inside, 0}).height));
    texts.value = CGRectMake(padding, CGRectGetMaxY(texts.name), inside, std::ceil(value_->sizeThatFits({inside, 0}).height));
    texts.height = CGRectGetMaxY(texts.value) + valueGap;
    return texts;
}

CGSize PickerPane::sizeThatFits(CGSize available) const {
    return {available.width, textsForWidth(available.width).height + lowestWheel() + padding};
}

void PickerPane::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const Texts texts = textsForWidth(size.width);
    const CGFloat room = size.height - texts.height - padding;
    const CGFloat wheel = std::round(std::clamp(room, lowestWheel(), highestWheel()));
    const CGFloat height = texts.height + wheel + padding;
    card_->setFrame(CGRectMake(0, 0, size.width, height));
    name_->setFrame(texts.name);
    value_->setFrame(texts.value);
    const CGFloat hintHeight = std::ceil(hint_->sizeThatFits({texts.name.size.width, 0}).height);
    hint_->setFrame(CGRectMake(padding, std::round(0.5 * (height - hintHeight)), texts.name.size.width, hintHeight));
    if (!cell_) return;
    const CGSize before = cell_->bounds().size;
    cell_->setFrame(CGRectMake(0, texts.height, size.width, wheel));
    if (cell_->bounds().size != before) measurement_->fitPicker();
}

} // namespace gallery
