#include "GalleryOverview.h"

#include <algorithm>
#include <cmath>

#include "GalleryTheme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat usualWheelHeight = 176;
// Of large rows so many have to be whole.
constexpr double fewestRowsOfWheel = 3;
// The narrowest that three columns with a unit beside them fit into.
constexpr CGFloat narrowestCard = 272;
constexpr CGFloat headingHeight = 44;

CGFloat wheelHeight() { return std::max(usualWheelHeight, fewestRowsOfWheel * GXStyleSheet::globalStyleSheet()->pickerRowHeight()); }
CGFloat cardHeight() { return headingHeight + wheelHeight() + 12; }

/// The grid of equal cards in a width.
struct Grid {
    explicit Grid(CGFloat width) : margin(GalleryTheme::marginForWidth(width)) {
        const CGFloat content = std::max(0.0, width - 2 * margin);
        columns = std::max<std::size_t>(1, static_cast<std::size_t>((content + GalleryTheme::gap) / (narrowestCard + GalleryTheme::gap)));
        const auto count = static_cast<CGFloat>(columns);
        cardWidth = std::floor((content - (count - 1) * GalleryTheme::gap) / count);
    }
    CGRect frameOfCard(std::size_t index) const {
        const auto column = static_cast<CGFloat>(index % columns);
        const std::size_t above = index / columns;
        const auto row = static_cast<CGFloat>(above);
        return CGRectMake(margin + column * (cardWidth + GalleryTheme::gap), margin + row * (cardHeight() + GalleryTheme::gap), cardWidth,
                          cardHeight());
    }

    CGFloat margin;
    std::size_t columns = 1;
    CGFloat cardWidth = 0;
};

} // namespace

Ref<GalleryOverview> GalleryOverview::overviewOfPages_open(std::vector<GalleryPageDescription> pages,
                                                           const std::function<void(std::size_t)>& open) {
    auto overview = create<GalleryOverview>(CGRectZero);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Card card = {std::move(pages[i]), {}, GalleryTheme::makeCard(), nullptr};
        card.exhibit = makeExhibit(card.page);
        card.heading = GalleryButton::buttonWithTitle_style(Translations::text(card.page.name), GalleryButton::Style::Heading);
        card.heading->setAction([open, i] { open(i); });
        card.card->addSubview(card.heading);
        card.card->addSubview(card.exhibit.picker);
        overview->addSubview(card.card);
        overview->cards_.push_back(std::move(card));
    }
    return overview;
}

GalleryExhibit GalleryOverview::makeExhibit(const GalleryPageDescription& page) {
    GalleryExhibit exhibit = page.makeExhibit([](const GalleryNotice&) {});
    for (const GalleryOption& option : exhibit.options) option.choose(option.chosen);
    return exhibit;
}

void GalleryOverview::renewPickers() {
    for (Card& card : cards_) {
        card.heading->setTitle(Translations::text(card.page.name)); // The language may be another one.
        const GalleryExhibit before = std::move(card.exhibit);
        card.exhibit = makeExhibit(card.page);
        card.exhibit.setValues(before.values());
        before.picker->removeFromSuperview();
        card.card->addSubview(card.exhibit.picker);
    }
    setNeedsLayout();
}

CGSize GalleryOverview::sizeThatFits(CGSize available) const {
    const Grid grid(available.width);
    const CGFloat height = cards_.empty() ? 0 : CGRectGetMaxY(grid.frameOfCard(cards_.size() - 1));
    return {available.width, height + grid.margin};
}

void GalleryOverview::layoutSubviews() {
    UIView::layoutSubviews();
    const Grid grid(bounds().size.width);
    for (std::size_t i = 0; i < cards_.size(); ++i) {
        const Card& card = cards_[i];
        card.card->setFrame(grid.frameOfCard(i));
        const CGFloat padding = GalleryTheme::cardPadding;
        card.heading->setFrame(CGRectMake(padding, 4, std::max(0.0, grid.cardWidth - 2 * padding), GalleryTheme::controlHeight));
        card.exhibit.picker->setFrame(CGRectMake(0, headingHeight, grid.cardWidth, wheelHeight()));
        fitFonts(card.exhibit.textPicker);
    }
}

} // namespace gallery
