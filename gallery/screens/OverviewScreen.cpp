#include "OverviewScreen.h"

#include <algorithm>
#include <cmath>

#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat usualWheelHeight = 176;
// At least so many rows are visible as a whole.
constexpr double fewestWholeRows = 3;
// The least width for three columns with a unit beside them. Chosen by eye.
constexpr CGFloat narrowestCard = 272;
constexpr CGFloat headingHeight = 44;

CGFloat wheelHeight() { return std::max(usualWheelHeight, fewestWholeRows * GXStyleSheet::globalStyleSheet()->pickerRowHeight()); }
CGFloat cardHeight() { return headingHeight + wheelHeight() + 12; }

/// Equal cards in rows, as many side by side as a width has room for.
struct Grid {
    explicit Grid(CGFloat width) : margin(Theme::marginForWidth(width)) {
        const CGFloat content = std::max(0.0, width - 2 * margin);
        columns = std::max<std::size_t>(1, static_cast<std::size_t>((content + Theme::gap) / (narrowestCard + Theme::gap)));
        const auto count = static_cast<CGFloat>(columns);
        cardWidth = std::floor((content - (count - 1) * Theme::gap) / count);
    }
    CGRect frameOfCard(std::size_t index) const {
        const auto column = static_cast<CGFloat>(index % columns);
        const std::size_t above = index / columns;
        const auto row = static_cast<CGFloat>(above);
        return CGRectMake(margin + column * (cardWidth + Theme::gap), margin + row * (cardHeight() + Theme::gap), cardWidth, cardHeight());
    }

    CGFloat margin;
    std::size_t columns = 1;
    CGFloat cardWidth = 0;
};

} // namespace

Ref<OverviewScreen> OverviewScreen::overviewOfPages_open(std::vector<PickerPageDescription> pages,
                                                         const std::function<void(std::size_t)>& open) {
    auto overview = create<OverviewScreen>(CGRectZero);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Card card = {std::move(pages[i]), {}, Theme::makeCard(), nullptr};
        card.demo = makeDemo(card.page);
        card.heading = Button::buttonWithTitle_style(Translations::text(card.page.name), Button::Style::Heading);
        card.heading->setAction([open, i] { open(i); });
        card.card->addSubview(card.heading);
        card.card->addSubview(card.demo.picker);
        overview->addSubview(card.card);
        overview->cards_.push_back(std::move(card));
    }
    return overview;
}

PickerDemo OverviewScreen::makeDemo(const PickerPageDescription& page) {
    PickerDemo demo = page.makeDemo([](const DelegateNotice&) {});
    for (const DemoOption& option : demo.options) option.choose(option.chosen);
    return demo;
}

void OverviewScreen::renewPickers() {
    for (Card& card : cards_) {
        // The language may be another one.
        card.heading->setTitle(Translations::text(card.page.name));
        const PickerDemo before = std::move(card.demo);
        card.demo = makeDemo(card.page);
        card.demo.setValues(before.values());
        before.picker->removeFromSuperview();
        card.card->addSubview(card.demo.picker);
    }
    setNeedsLayout();
}

CGSize OverviewScreen::sizeThatFits(CGSize available) const {
    const Grid grid(available.width);
    const CGFloat height = cards_.empty() ? 0 : CGRectGetMaxY(grid.frameOfCard(cards_.size() - 1));
    return {available.width, height + grid.margin};
}

void OverviewScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const Grid grid(bounds().size.width);
    for (std::size_t i = 0; i < cards_.size(); ++i) {
        const Card& card = cards_[i];
        card.card->setFrame(grid.frameOfCard(i));
        const CGFloat padding = Theme::cardPadding;
        card.heading->setFrame(CGRectMake(padding, 4, std::max(0.0, grid.cardWidth - 2 * padding), Theme::controlHeight));
        card.demo.picker->setFrame(CGRectMake(0, headingHeight, grid.cardWidth, wheelHeight()));
        if (card.demo.textPicker) card.demo.textPicker->sizeFontsToFit();
    }
}

} // namespace gallery
