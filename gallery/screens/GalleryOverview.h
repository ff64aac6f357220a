#pragma once

#include <functional>
#include <vector>

#include "GalleryButton.h"
#include "GalleryPage.h"

namespace gallery {

/// All pickers at a glance: a card each, as many side by side as there is room for.
class GalleryOverview : public gx::UIView {
public:
    /// `open` is called with the number of the page whose heading was tapped.
    static gx::Ref<GalleryOverview> overviewOfPages_open(std::vector<GalleryPageDescription> pages,
                                                         const std::function<void(std::size_t)>& open);

    std::size_t count() const { return cards_.size(); }
    const gx::Ref<gx::UIView>& card(std::size_t index) const { return cards_[index].card; }
    const gx::Ref<GalleryButton>& heading(std::size_t index) const { return cards_[index].heading; }
    const GalleryExhibit& exhibit(std::size_t index) const { return cards_[index].exhibit; }

    /// Makes all pickers anew, with the values they show.
    void renewPickers();

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Card {
        GalleryPageDescription page;
        GalleryExhibit exhibit;
        gx::Ref<gx::UIView> card;
        gx::Ref<GalleryButton> heading;
    };
    static GalleryExhibit makeExhibit(const GalleryPageDescription& page);

    std::vector<Card> cards_;
};

} // namespace gallery
