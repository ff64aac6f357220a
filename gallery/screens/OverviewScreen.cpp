#include "OverviewScreen.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat usualWheelHeight = 176;
// The least width for three columns with a unit beside them. Chosen by eye.
constexpr CGFloat narrowestCard = 272;
constexpr CGFloat headingGap = 4; // Above the heading.
constexpr CGFloat wheelGap = 12;  // Below the wheel.

CGFloat wheelHeight() { return std::max(usualWheelHeight, Theme::fewestRowsOfWheel * GXStyleSheet::globalStyleSheet()->pickerRowHeight()); }

} // namespace

/// Equal cards in rows, as many side by side as a width has room for.
struct OverviewScreen::Grid {
    Grid(CGFloat width, const std::vector<Card>& cards) : margin(Theme::marginForWidth(width)) {
        const CGFloat content = std::max(0.0, width - 2 * margin);
        const CGFloat narrowest = Theme::grown(narrowestCard);
        columns = std::max<std::size_t>(1, static_cast<std::size_t>((content + Theme::gap) / (narrowest + Theme::gap)));
        const auto count = static_cast<CGFloat>(columns);
        cardWidth = std::floor((content - (count - 1) * Theme::gap) / count);
        const CGFloat room = headingWidth();
        for (const Card& card : cards) headingHeight = std::max(headingHeight, card.heading->sizeThatFits({room, 0}).height);
    }
    CGFloat headingWidth() const { return std::max(0.0, cardWidth - 2 * Theme::cardPadding); }
    CGFloat cardHeight() const { return headingGap + headingHeight + wheelHeight() + wheelGap; }
    CGRect frameOfCard(std::size_t index) const {
        const auto column = static_cast<CGFloat>(index % columns);
        const std::size_t above = index / columns;
        const auto row = static_cast<CGFloat>(above);
        return CGRectMake(margin + column * (cardWidth + Theme::gap), margin + row * (cardHeight() + Theme::gap), cardWidth, cardHeight());
    }

    CGFloat margin;
    std::size_t columns = 1;
    CGFloat cardWidth = 0;
    CGFloat headingHeight = 0; ///< of all cards, so that their wheels are aligned
};

Ref<OverviewScreen> OverviewScreen::overviewOfPages_open(std::vector<PickerPageDescription> pages,
                                                         const std::function<void(std::size_t)>& open) {
    auto overview = create<OverviewScreen>(CGRectZero);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Card card = {std::move(pages[i]), {}, Theme::makeCard(), nullptr};
        card.demo = makeDemo(card.page);
        card.heading = Button::buttonWithTitle_style("", Button::Style::Heading);
        nameHeading(card);
        card.heading->setAction([open, i] { open(i); });
        card.card->addSubview(card.heading);
        card.card->addSubview(card.demo.picker);
        overview->addSubview(card.card);
        overview->cards_.push_back(std::move(card));
    }
    return overview;
}

void OverviewScreen::nameHeading(const Card& card) {
    card.heading->setTitle(Translations::text(card.page.name));
    card.heading->setAccessibilityLabel(Translations::filled("Show the page: {0}", card.heading->title()));
}

PickerDemo OverviewScreen::makeDemo(const PickerPageDescription& page) {
    PickerDemo demo = page.makeDemo([](const DelegateNotice&) {});
    for (const DemoOption& option : demo.options) option.choose(option.chosen);
    return demo;
}

void OverviewScreen::renewPickers() {
    for (Card& card : cards_) {
        nameHeading(card); // The language may be another one.
        const PickerDemo before = std::move(card.demo);
        card.demo = makeDemo(card.page);
        card.demo.setValues(before.values());
        before.picker->removeFromSuperview();
        card.card->addSubview(card.demo.picker);
    }
    setNeedsLayout();
}

CGSize OverviewScreen::sizeThatFits(CGSize available) const {
    const Grid grid(available.width, cards_);
    const CGFloat height = cards_.empty() ? 0 : CGRectGetMaxY(grid.frameOfCard(cards_.size() - 1));
    return {available.width, height + grid.margin};
}

void OverviewScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = bounds().size.width;
    const Grid grid(width, cards_);
    for (std::size_t i = 0; i < cards_.size(); ++i) {
        const Card& card = cards_[i];
        card.card->setFrame(ReadingDirection::frame(grid.frameOfCard(i), width));
        card.heading->setFrame(CGRectMake(Theme::cardPadding, headingGap, grid.headingWidth(), grid.headingHeight));
        card.demo.picker->setFrame(CGRectMake(0, headingGap + grid.headingHeight, grid.cardWidth, wheelHeight()));
        if (card.demo.textPicker) card.demo.textPicker->sizeFontsToFit();
    }
}

} // namespace gallery
